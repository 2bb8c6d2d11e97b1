#pragma once

// Decimal digits of numbers, eight or sixteen in one go.

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace corvane::utils::numeric {

/// Eight digits as numbers, a byte each, the first one lowest.
using Digits = std::uint64_t;

inline constexpr std::uint64_t kEightDigits = 100'000'000;
inline constexpr std::size_t kBitsOfADigit = 8;

/// @pre number < 10^8.
[[nodiscard]] constexpr Digits splitIntoDigits(std::uint64_t number) noexcept {
    // From one number of eight digits to two of four, four of two and eight of one, each half in
    // a lane of its own. A lane with quotient q and remainder r becomes q + (r << width), which is
    // (the lane << width) - q * ((divisor << width) - 1).
    const std::uint64_t thousands = static_cast<std::uint32_t>(number) / 10'000U;
    const std::uint64_t fours = (number << 32U) - thousands * ((std::uint64_t{10'000} << 32U) - 1);
    const std::uint64_t hundreds = ((fours * 10'486) >> 20U) & 0x0000'007F'0000'007FU;
    const std::uint64_t twos = (fours << 16U) - hundreds * ((100U << 16U) - 1);
    const std::uint64_t tens = ((twos * 103) >> 10U) & 0x000F'000F'000F'000FU;
    return (twos << 8U) - tens * ((10U << 8U) - 1);
}

static_assert(splitIntoDigits(12'345'678) == 0x0807'0605'0403'0201U);
static_assert(splitIntoDigits(99'999'999) == 0x0909'0909'0909'0909U);

/// Writes eight characters, from the lowest digit on; the caller counts those that matter.
inline void writeDigits(char* to, Digits digits) noexcept {
    const std::uint64_t characters = digits | 0x3030'3030'3030'3030U; // '0'
    static_assert(std::endian::native == std::endian::little);
    std::memcpy(to, &characters, sizeof characters);
}

/// The digits of two numbers below 10^8, one behind the other.
class SixteenDigits {
public:
    SixteenDigits(std::uint64_t first, std::uint64_t second) noexcept
        : first_(splitIntoDigits(first)), second_(splitIntoDigits(second)) {}

    void write(char* to) const noexcept {
        writeDigits(to, first_);
        writeDigits(to + 8, second_);
    }
    /// How many there are up to the last one that is not zero.
    [[nodiscard]] std::size_t countUpToLast() const noexcept {
        return second_ == 0 ? countUpToLast(first_) : 8 + countUpToLast(second_);
    }

private:
    [[nodiscard]] static std::size_t countUpToLast(Digits digits) noexcept {
        return 8 - static_cast<std::size_t>(std::countl_zero(digits)) / kBitsOfADigit;
    }

    Digits first_;
    Digits second_;
};

} // namespace corvane::utils::numeric
