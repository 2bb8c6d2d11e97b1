#pragma once

// A number of a JSON text as an integer, decided on its digits: nothing is rounded on the way.

#include <cstdint>
#include <string_view>

namespace corvane::utils::json::decoder::detail {

struct ExactInteger {
    enum class Outcome : std::uint8_t {
        Integer,
        Fraction,   ///< the number is not whole
        OutOfRange, ///< 64 bits do not hold the magnitude
    };

    Outcome outcome;
    std::uint64_t magnitude = 0;
    bool isNegative = false;
};

/// @pre number is a number by the rules of JSON that a double can hold, perhaps rounded.
[[nodiscard]] ExactInteger readExactInteger(std::string_view number) noexcept;

} // namespace corvane::utils::json::decoder::detail
