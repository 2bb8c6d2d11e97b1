// A double is c × 2^e, and the numbers that read back as it lie within half a binary place of it.
// With a scale 10^p such that this interval is at least one and less than ten units wide, its
// candidates are the whole numbers next to c × 2^e × 10^p, or next to a tenth of it. For the
// magnitudes answered here c × 5^p fits into 128 bits, so that all of this is exact.
#include "shortestDecimal.hpp"

#include "multiply.hpp"

#include <array>
#include <bit>
#include <cstddef>

namespace corvane::utils::numeric {

namespace {

constexpr int kSignificandBits = 52;

/// floor(log10(2^exponent)), or floor(log10(3/4 × 2^exponent)), exact for every double.
[[nodiscard]] constexpr int floorLog10(int exponent, bool threeQuarters) noexcept {
    return (exponent * 1'262'611 - (threeQuarters ? 524'031 : 0)) >> 22;
}

/// The smallest number that is answered for needs the highest of them.
constexpr auto kPowersOf5 = [] {
    std::array<std::uint64_t, 20> powers{1};
    for (std::size_t index = 1; index < powers.size(); ++index) {
        powers[index] = powers[index - 1] * 5;
    }
    return powers;
}();

} // namespace

std::optional<ShortestDecimal> shortestDecimal(double number) noexcept {
    if (!(number >= 1e-3 && number < 1e15)) {
        return std::nullopt;
    }
    const auto bits = std::bit_cast<std::uint64_t>(number);
    const std::uint64_t fraction = bits & ((std::uint64_t{1} << kSignificandBits) - 1);
    const std::uint64_t significand = fraction | (std::uint64_t{1} << kSignificandBits);
    const int exponent = static_cast<int>(bits >> kSignificandBits) - 1075;
    if (std::countr_zero(significand) >= -exponent) {
        return std::nullopt; // whole
    }

    // The neighbour below a power of two is only half as far away as the one above it.
    const bool isPowerOf2 = fraction == 0;
    const int place = floorLog10(exponent, isPowerOf2);
    const std::uint64_t halfGap = kPowersOf5[static_cast<std::size_t>(-place)];
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
    const bool goesUp = holdsBelow == holdsAbove ? isNearerAbove : holdsAbove;

    // Both outcomes are about as likely: choosing between two results is faster than branching.
    ShortestDecimal shortest{isShorter ? tens + std::uint64_t{holdsTensAbove}
                                       : digits + std::uint64_t{goesUp},
                             place + int{isShorter}};
    while (shortest.digits % 10 == 0) {
        shortest.digits /= 10;
        ++shortest.exponent;
    }
    return shortest;
}

} // namespace corvane::utils::numeric
