#include "exactInteger.hpp"

#include <charconv>
#include <limits>

namespace corvane::utils::json::decoder::detail {

namespace {

using Outcome = ExactInteger::Outcome;

/// Appends a digit; returns false if the number becomes too large.
[[nodiscard]] bool append(std::uint64_t& number, std::uint64_t digit) noexcept {
    constexpr std::uint64_t limit = std::numeric_limits<std::uint64_t>::max();
    if (number > (limit - digit) / 10) {
        return false;
    }
    number = number * 10 + digit;
    return true;
}

[[nodiscard]] bool appendZeros(std::uint64_t& number, std::int64_t count) noexcept {
    for (; count > 0 && number != 0; --count) {
        if (!append(number, 0)) {
            return false;
        }
    }
    return true;
}

[[nodiscard]] std::int64_t readExponent(std::string_view text) noexcept {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
    }
    std::int64_t exponent = 0;
    std::from_chars(text.data(), text.data() + text.size(), exponent);
    return exponent;
}

} // namespace

ExactInteger readExactInteger(std::string_view number) noexcept {
    const bool isNegative = number.starts_with('-');
    number.remove_prefix(isNegative ? 1 : 0);
    const std::size_t digitsEnd = number.find_first_of("eE");

    // Up to the last digit that is not zero; the zeros behind it move the point.
    std::uint64_t magnitude = 0;
    bool fits = true;
    std::int64_t zeros = 0;
    std::int64_t places = 0;
    bool isBehindPoint = false;
    for (const char character : number.substr(0, digitsEnd)) {
        if (character == '.') {
            isBehindPoint = true;
            continue;
        }
        places += isBehindPoint ? 1 : 0;
        if (character == '0') {
            ++zeros;
            continue;
        }
        const auto digit = static_cast<std::uint64_t>(character - '0');
        fits = fits && appendZeros(magnitude, zeros) && append(magnitude, digit);
        zeros = 0;
    }
    if (magnitude == 0) {
        return {Outcome::Integer, 0, isNegative};
    }
    std::int64_t exponent = zeros - places;
    if (digitsEnd != std::string_view::npos) {
        exponent += readExponent(number.substr(digitsEnd + 1));
    }
    if (exponent < 0) {
        return {Outcome::Fraction};
    }
    if (!fits || !appendZeros(magnitude, exponent)) {
        return {Outcome::OutOfRange};
    }
    return {Outcome::Integer, magnitude, isNegative};
}

} // namespace corvane::utils::json::decoder::detail
