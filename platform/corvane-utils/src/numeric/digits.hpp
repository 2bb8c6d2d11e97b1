// Decimal digits of numbers, eight or sixteen in one go.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__) || (defined(_MSC_VER) && defined(_M_X64))
#include <emmintrin.h>
#endif

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
    const std::uint64_t fours = (number << 32U) - number / 10'000 * ((10'000ULL << 32U) - 1);
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
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(to, &characters, sizeof characters);
    } else {
        for (std::size_t index = 0; index != sizeof characters; ++index) {
            to[index] = static_cast<char>(characters >> (index * kBitsOfADigit));
        }
    }
}

/// The digits of two numbers below 10^8, one behind the other, on every machine.
class WordDigits {
public:
    WordDigits(std::uint64_t first, std::uint64_t second) noexcept
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

#if defined(__SSE2__) || (defined(_MSC_VER) && defined(_M_X64))

/// The same in half the instructions.
class Sse2Digits {
public:
    Sse2Digits(std::uint64_t first, std::uint64_t second) noexcept
        : digits_(split(_mm_set_epi64x(static_cast<std::int64_t>(second),
                                       static_cast<std::int64_t>(first)))) {}

    void write(char* to) const noexcept {
        const __m128i characters = _mm_or_si128(digits_, _mm_set1_epi8('0'));
        std::memcpy(to, &characters, sizeof characters);
    }
    [[nodiscard]] std::size_t countUpToLast() const noexcept {
        const int isZero = _mm_movemask_epi8(_mm_cmpeq_epi8(digits_, _mm_setzero_si128()));
        return static_cast<std::size_t>(std::bit_width(0xFFFFU ^ static_cast<unsigned>(isZero)));
    }

private:
    /// As splitIntoDigits() does, with a quotient and remainder in each half of a lane.
    [[nodiscard]] static __m128i split(__m128i eights) noexcept {
        const __m128i thousands =
            _mm_srli_epi64(_mm_mul_epu32(eights, _mm_set1_epi64x(3'518'437'209)), 45);
        const __m128i fours = _mm_or_si128(
            thousands,
            _mm_slli_epi64(_mm_sub_epi64(eights, _mm_mul_epu32(thousands, _mm_set1_epi64x(10'000))),
                           32));
        const __m128i hundreds = _mm_srli_epi16(_mm_mulhi_epu16(fours, _mm_set1_epi16(5'243)), 3);
        const __m128i twos = _mm_or_si128(
            hundreds,
            _mm_slli_epi32(_mm_sub_epi16(fours, _mm_mullo_epi16(hundreds, _mm_set1_epi16(100))),
                           16));
        const __m128i tens = _mm_mulhi_epu16(twos, _mm_set1_epi16(6'554));
        return _mm_or_si128(
            tens,
            _mm_slli_epi16(_mm_sub_epi16(twos, _mm_mullo_epi16(tens, _mm_set1_epi16(10))), 8));
    }

    __m128i digits_;
};

using SixteenDigits = Sse2Digits;

#else

using SixteenDigits = WordDigits;

#endif

} // namespace corvane::utils::numeric
