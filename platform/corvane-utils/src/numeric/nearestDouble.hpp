#pragma once

// The double that is nearest to a decimal number, for the numbers that people write.
//
// The digits are multiplied, as integers, by the leading 64 bits of the power of five; the powers
// of two only move the point. Where the bits that were cut off could change how the product is
// rounded, such as halfway between two doubles, the arithmetic of doubles has the answer if it is
// exact.

#include "multiply.hpp"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace corvane::utils::numeric {

namespace detail {

/// The highest power of five that 64 bits hold exactly.
inline constexpr int kMaximumExponent = 27;

/// The highest power that a double holds exactly.
inline constexpr int kMaximumExactPowerOf10 = 22;
inline constexpr auto kDoublePowersOf10 = [] {
    std::array<double, kMaximumExactPowerOf10 + 1> powers{1.0};
    for (std::size_t index = 1; index < powers.size(); ++index) {
        powers[index] = powers[index - 1] * 10.0;
    }
    return powers;
}();

/// bits × 2^scale, cut off below.
struct PowerOf5 {
    /// The highest bit is set.
    std::uint64_t bits = 0;
    int scale = 0;
};

[[nodiscard]] constexpr PowerOf5 exactPower(std::uint64_t power) noexcept {
    const int shift = std::countl_zero(power);
    return {power << shift, -shift};
}

/// 1 / power, by long division; power is no power of two.
[[nodiscard]] constexpr PowerOf5 reciprocal(std::uint64_t power) noexcept {
    const int scale = 63 + std::bit_width(power);
    std::uint64_t bits = 0;
    std::uint64_t rest = 1;
    for (int bit = 0; bit != scale; ++bit) {
        // The rest is below the power, and that below 2^63.
        rest *= 2;
        bits = bits * 2 + (rest >= power ? 1 : 0);
        rest -= rest >= power ? power : 0;
    }
    return {bits, -scale};
}

/// From 5^-27 to 5^27.
inline constexpr auto kTruncatedPowersOf5 = [] {
    std::array<PowerOf5, 2 * kMaximumExponent + 1> powers{};
    std::uint64_t power = 1;
    for (std::size_t exponent = 0; exponent <= kMaximumExponent; ++exponent) {
        powers[kMaximumExponent + exponent] = exactPower(power);
        if (exponent != 0) {
            powers[kMaximumExponent - exponent] = reciprocal(power);
        }
        power *= 5;
    }
    return powers;
}();

/// When a double holds both the digits and the power of ten, its own arithmetic rounds correctly.
[[nodiscard]] inline std::optional<double> nearestToExact(std::uint64_t digits,
                                                          int exponent) noexcept {
    constexpr std::uint64_t limit = std::uint64_t{1} << 53U;
    if (digits > limit || exponent < -kMaximumExactPowerOf10 || exponent > kMaximumExactPowerOf10) {
        return std::nullopt;
    }
    const auto number = static_cast<double>(digits);
    return exponent < 0 ? number / kDoublePowersOf10[static_cast<std::size_t>(-exponent)]
                        : number * kDoublePowersOf10[static_cast<std::size_t>(exponent)];
}

} // namespace detail

/// The double nearest to digits × 10^exponent; the one with the even significand when two are as
/// near. Answers most numbers of up to 19 digits with an exponent between -27 and 27; nothing when
/// more than 64 bits are needed to tell.
[[nodiscard]] inline std::optional<double> nearestDouble(std::uint64_t digits,
                                                         int exponent) noexcept {
    if (digits == 0) {
        return 0.0;
    }
    if (exponent < -detail::kMaximumExponent || exponent > detail::kMaximumExponent) {
        return std::nullopt;
    }
    const detail::PowerOf5& power =
        detail::kTruncatedPowersOf5[static_cast<std::size_t>(exponent + detail::kMaximumExponent)];
    const int shift = std::countl_zero(digits);
    const std::uint64_t product = multiply(digits << shift, power.bits).high;

    // The true product lies at or above the one at hand and less than two units above it.
    const int surplus = 10 + static_cast<int>(product >> 63U);
    const std::uint64_t half = std::uint64_t{1} << (surplus - 1);
    const std::uint64_t rest = product & (2 * half - 1);
    if (rest == half - 1 || rest == half) {
        return detail::nearestToExact(digits, exponent);
    }
    const std::uint64_t significand = (product >> surplus) + (rest > half ? 1 : 0);
    // The significand's highest bit, which a double leaves out, adds one to its exponent.
    const int biased = surplus + 64 + exponent + power.scale - shift + 1074;
    return std::bit_cast<double>((static_cast<std::uint64_t>(biased) << 52U) + significand);
}

} // namespace corvane::utils::numeric
