#pragma once

// The shortest decimal number that reads back as a given double, for the magnitudes that
// configurations are made of; faster there than the standard library, with the same result.
//
// A double is c × 2^e, and the numbers that read back as it lie within half a binary place of it.
// With a scale 10^p such that this interval is more than one and less than ten units wide, it holds
// the nearest whole number to c × 2^e × 10^p, and at most one multiple of ten. For the magnitudes
// answered here c × 5^p fits into 128 bits, so that all of this is exact.
//
// Below a power of two the interval ends at a quarter of a place. That does not matter here: those
// that are not whole, 2^-9 to 2^-1, have so few digits that they are their own shortest decimal.

#include "multiply.hpp"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace corvane::utils::numeric {

/// digits × 10^exponent; the digits may end with zeros.
struct ShortestDecimal {
    std::uint64_t digits;
    int exponent;
};

namespace detail {

/// floor(log10(2^exponent)), exact for every double.
[[nodiscard]] constexpr int floorLog10(int exponent) noexcept {
    return (exponent * 1'262'611) >> 22;
}

/// The smallest number that is answered for needs the highest of them.
inline constexpr auto kPowersOf5 = [] {
    std::array<std::uint64_t, 20> powers{1};
    for (std::size_t index = 1; index < powers.size(); ++index) {
        powers[index] = powers[index - 1] * 5;
    }
    return powers;
}();

} // namespace detail

/// Of the decimal numbers with the fewest digits that read back as the given one, the nearest.
/// @pre 0.001 <= number < 1e15, and number is not whole.
[[nodiscard]] constexpr ShortestDecimal shortestDecimal(double number) noexcept {
    constexpr int significandBits = 52;
    const auto bits = std::bit_cast<std::uint64_t>(number);
    const std::uint64_t fraction = bits & ((std::uint64_t{1} << significandBits) - 1);
    const std::uint64_t significand = fraction | (std::uint64_t{1} << significandBits);
    const int exponent = static_cast<int>(bits >> significandBits) - 1075;

    const int place = detail::floorLog10(exponent);
    const std::uint64_t halfGap = detail::kPowersOf5[static_cast<std::size_t>(-place)];
    const Wide scaled = multiply(2 * significand, halfGap);
    const auto fractionBits = static_cast<unsigned>(place - exponent + 1);
    const std::uint64_t unit = std::uint64_t{1} << fractionBits;
    const std::uint64_t digits =
        (scaled.high << (64 - fractionBits)) | (scaled.low >> fractionBits);
    const std::uint64_t above = scaled.low & (unit - 1);

    const bool isNearerAbove = 2 * above + (digits & 1U) > unit;

    // A midpoint itself reads back as the neighbour with the even significand.
    const std::uint64_t reach = halfGap + (significand % 2 == 0 ? 1 : 0);
    const std::uint64_t tens = digits / 10;
    const std::uint64_t aboveTens = digits % 10 * unit + above;
    const bool holdsTensBelow = aboveTens < reach;
    const bool holdsTensAbove = 10 * unit - aboveTens < reach;

    // Whether there is a shorter one is open: calculating both is faster than branching.
    const std::uint64_t shorter = tens + std::uint64_t{holdsTensAbove};
    const std::uint64_t longer = digits + std::uint64_t{isNearerAbove};
    const bool isShorter = holdsTensBelow != holdsTensAbove;
    const std::uint64_t choice = 0 - std::uint64_t{isShorter}; // all bits or none
    return {longer ^ ((longer ^ shorter) & choice), place + int{isShorter}};
}

} // namespace corvane::utils::numeric
