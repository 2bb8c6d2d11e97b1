// The shortest decimal number that reads back as a given double, for the magnitudes that
// configurations are made of; faster there than the standard library, with the same result.
//
// A double is c × 2^e, and the numbers that read back as it lie within half a binary place of it.
// With a scale 10^p such that this interval is more than one and less than ten units wide, its
// candidates are the whole numbers next to c × 2^e × 10^p, or next to a tenth of it. For the
// magnitudes answered here c × 5^p fits into 128 bits, so that all of this is exact.
#pragma once

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

/// floor(log10(2^exponent)), or floor(log10(3/4 × 2^exponent)), exact for every double.
[[nodiscard]] constexpr int floorLog10(int exponent, bool threeQuarters) noexcept {
    return (exponent * 1'262'611 - (threeQuarters ? 524'031 : 0)) >> 22;
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

    // The neighbour below a power of two is only half as far away as the one above it.
    const bool isPowerOf2 = fraction == 0;
    const int place = detail::floorLog10(exponent, isPowerOf2);
    const std::uint64_t halfGap = detail::kPowersOf5[static_cast<std::size_t>(-place)];
    const std::uint64_t halfGapBelow = isPowerOf2 ? halfGap / 2 : halfGap;
    const Wide scaled = multiply(2 * significand, halfGap);
    const auto fractionBits = static_cast<unsigned>(place - exponent + 1);
    const std::uint64_t unit = std::uint64_t{1} << fractionBits;
    const std::uint64_t digits =
        (scaled.high << (64 - fractionBits)) | (scaled.low >> fractionBits);
    const std::uint64_t above = scaled.low & (unit - 1);

    // A midpoint itself reads back as the neighbour with the even significand.
    const std::uint64_t reach = halfGap + (significand % 2 == 0 ? 1 : 0);
    const std::uint64_t reachBelow = halfGapBelow + (significand % 2 == 0 ? 1 : 0);

    const std::uint64_t tens = digits / 10;
    const std::uint64_t ones = digits % 10;
    const bool holdsTensBelow = ones * unit + above < reachBelow;
    const bool holdsTensAbove = (10 - ones) * unit - above < reach;
    const bool isShorter = holdsTensBelow != holdsTensAbove;

    const bool holdsBelow = above < reachBelow;
    const bool holdsAbove = unit - above < reach;
    const bool isNearerAbove = 2 * above + (digits & 1U) > unit;
    // Each outcome is about as likely as the other: calculating with both is faster than
    // branching, here and below.
    const bool goesUp = holdsAbove & (isNearerAbove | !holdsBelow);

    const std::uint64_t shorter = tens + std::uint64_t{holdsTensAbove};
    const std::uint64_t longer = digits + std::uint64_t{goesUp};
    const std::uint64_t choice = 0 - std::uint64_t{isShorter}; // all bits or none
    return {longer ^ ((longer ^ shorter) & choice), place + int{isShorter}};
}

} // namespace corvane::utils::numeric
