// The shortest decimal number that reads back as a given double, for the magnitudes that
// configurations are made of; faster there than the standard library, with the same result.
#pragma once

#include <cstdint>
#include <optional>

namespace corvane::utils::numeric {

/// digits × 10^exponent, without zeros at the end of the digits.
struct ShortestDecimal {
    std::uint64_t digits;
    int exponent;
};

/// Of the decimal numbers with the fewest digits that read back as the given one, the nearest.
/// Answers for positive numbers from 0.001 to below 1e15 that are not whole.
[[nodiscard]] std::optional<ShortestDecimal> shortestDecimal(double number) noexcept;

} // namespace corvane::utils::numeric
