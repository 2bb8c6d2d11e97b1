// Eight bytes of a JSON text at once, as a number whose lowest byte is the first one.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace corvane::utils::json {

inline constexpr std::size_t kEight = 8;
inline constexpr std::uint64_t kOnes = 0x0101010101010101U;

[[nodiscard]] inline std::uint64_t loadEightBytes(const char* from) noexcept {
    static_assert(std::endian::native == std::endian::little);
    std::uint64_t bytes{};
    std::memcpy(&bytes, from, sizeof bytes);
    return bytes;
}

/// How many bytes at the front stand for themselves in a JSON string, which is all but control
/// characters, quotes, backslashes and what is not ASCII.
[[nodiscard]] constexpr std::size_t countPlainBytes(std::uint64_t bytes) noexcept {
    // The highest bit of a byte tells. A borrow may set it wrongly, but only behind one that is
    // set rightly.
    const auto isZero = [](std::uint64_t word) { return (word - kOnes) & ~word; };
    const std::uint64_t others = ((bytes - 0x20 * kOnes) | bytes | isZero(bytes ^ ('"' * kOnes)) |
                                  isZero(bytes ^ ('\\' * kOnes))) &
                                 (0x80 * kOnes);
    return static_cast<std::size_t>(std::countr_zero(others)) / 8;
}

/// How many bytes at the front are spaces.
[[nodiscard]] constexpr std::size_t countSpaces(std::uint64_t bytes) noexcept {
    return static_cast<std::size_t>(std::countr_zero(bytes ^ (' ' * kOnes))) / 8;
}

/// How many bytes at the front are digits.
[[nodiscard]] constexpr std::size_t countDigits(std::uint64_t bytes) noexcept {
    // As above: the first bit that is set is right.
    const std::uint64_t digits = bytes ^ ('0' * kOnes);
    const std::uint64_t others = (digits | (digits + 0x76 * kOnes)) & (0x80 * kOnes);
    return static_cast<std::size_t>(std::countr_zero(others)) / 8;
}

/// The number that so many digits at the front stand for.
[[nodiscard]] constexpr std::uint32_t readDigits(std::uint64_t bytes, std::size_t count) noexcept {
    if (count == 0) {
        return 0;
    }
    // With zeros in front they are eight. First come the four pairs, each in two bytes, then all
    // pairs by their weights in the high half.
    constexpr std::uint64_t pair = 0x000000FF000000FFU;
    const std::uint64_t digits = (bytes & (0x0F * kOnes)) << (8 * (kEight - count));
    const std::uint64_t pairs = digits * 10 + (digits >> 8U);
    const std::uint64_t weighted = (pairs & pair) * (100 + (std::uint64_t{1'000'000} << 32U)) +
                                   ((pairs >> 16U) & pair) * (1 + (std::uint64_t{10'000} << 32U));
    return static_cast<std::uint32_t>(weighted >> 32U);
}

} // namespace corvane::utils::json
