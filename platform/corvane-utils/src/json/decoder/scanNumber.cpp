#include "scanNumber.hpp"

#include "../eightBytes.hpp"

#include <fast_float/fast_float.h>

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstddef>
#include <limits>
#include <system_error>

namespace corvane::utils::json::decoder::detail {

namespace {

using Outcome = ScannedNumber::Outcome;

/// What is left of a text.
class Rest {
public:
    Rest(const char* begin, const char* end) noexcept : begin_(begin), end_(end) {}

    [[nodiscard]] const char* begin() const noexcept { return begin_; }
    [[nodiscard]] std::size_t size() const noexcept {
        return static_cast<std::size_t>(end_ - begin_);
    }
    void skip(std::size_t count) noexcept { begin_ += count; }
    /// Skips one of two characters; returns whether it was there.
    bool skipEither(char character, char other) noexcept {
        const bool isThere = begin_ != end_ && (*begin_ == character || *begin_ == other);
        begin_ += isThere ? 1 : 0;
        return isThere;
    }
    [[nodiscard]] bool startsWith(char character) const noexcept {
        return begin_ != end_ && *begin_ == character;
    }
    [[nodiscard]] bool startsWithDigit() const noexcept {
        return begin_ != end_ && *begin_ >= '0' && *begin_ <= '9';
    }

private:
    const char* begin_;
    const char* end_;
};

struct Digits {
    /// Of no use when there are more digits than it can hold.
    std::uint64_t value = 0;
    std::size_t count = 0;

    [[nodiscard]] bool areExact() const noexcept {
        return count <= std::numeric_limits<std::uint64_t>::digits10;
    }
};

constexpr std::array<std::uint64_t, kEight + 1> kPowersOf10{
    1, 10, 100, 1'000, 10'000, 100'000, 1'000'000, 10'000'000, 100'000'000};

/// Appends the digits that come next and skips them; false when there are none.
inline bool skipDigits(Rest& rest, Digits& digits) noexcept {
    const char* const begin = rest.begin();
    while (rest.startsWithDigit()) {
        digits.value = digits.value * 10 + static_cast<std::uint64_t>(*rest.begin() - '0');
        rest.skip(1);
    }
    digits.count += static_cast<std::size_t>(rest.begin() - begin);
    return rest.begin() != begin;
}

/// The same, faster for many digits.
inline bool skipManyDigits(Rest& rest, Digits& digits) noexcept {
    const char* const begin = rest.begin();
    std::size_t count = kEight;
    while (count == kEight && rest.size() >= kEight) {
        const std::uint64_t bytes = loadEightBytes(rest.begin());
        count = countDigits(bytes);
        digits.value = digits.value * kPowersOf10[count] + readDigits(bytes, count);
        rest.skip(count);
    }
    digits.count += static_cast<std::size_t>(rest.begin() - begin);
    if (count == kEight) { // fewer bytes are left
        skipDigits(rest, digits);
    }
    return rest.begin() != begin;
}

/// Adds the exponent that comes next and skips it; false when it is incomplete.
[[nodiscard]] bool skipExponent(Rest& rest, std::int64_t& exponent) noexcept {
    const bool isNegative = rest.startsWith('-');
    rest.skipEither('-', '+');
    if (!rest.startsWithDigit()) {
        return false;
    }
    constexpr std::int64_t beyondEveryDouble = 100'000;
    std::int64_t magnitude = 0;
    for (; rest.startsWithDigit(); rest.skip(1)) {
        magnitude = std::min(magnitude * 10 + (*rest.begin() - '0'), beyondEveryDouble);
    }
    exponent += isNegative ? -magnitude : magnitude;
    return true;
}

/// The number from begin to end, digits × 10^exponent.
[[nodiscard]] ScannedNumber makeDouble(const char* begin, const char* end, const Digits& digits,
                                       std::int64_t exponent) noexcept {
    double number = 0;
    fast_float::from_chars_result result{};
    if (digits.areExact()) {
        fast_float::parsed_number_string parsed;
        parsed.mantissa = digits.value;
        parsed.exponent = exponent;
        parsed.negative = *begin == '-';
        result = fast_float::from_chars_advanced(parsed, number);
    } else {
        result = fast_float::from_chars(begin, end, number);
    }
    return {end, std::bit_cast<std::uint64_t>(number), TokenKind::Double,
            result.ec == std::errc() ? Outcome::Number : Outcome::OutOfRange};
}

/// The integer from begin to end.
[[nodiscard]] ScannedNumber makeInteger(const char* begin, const char* end,
                                        const Digits& digits) noexcept {
    constexpr std::uint64_t limit = std::uint64_t{1} << 63U;
    const bool isNegative = *begin == '-';
    std::uint64_t bits = digits.value;
    if (digits.areExact() && bits < limit && !(isNegative && bits == 0)) {
        return {end, isNegative ? 0 - bits : bits, TokenKind::Int64, Outcome::Number};
    }
    if (isNegative) {
        return bits == limit && digits.areExact()
                   ? ScannedNumber{end, limit, TokenKind::Int64, Outcome::Number}
                   : makeDouble(begin, end, digits, 0);
    }
    if (std::from_chars(begin, end, bits).ec == std::errc()) {
        return {end, bits, TokenKind::UInt64, Outcome::Number};
    }
    return makeDouble(begin, end, digits, 0);
}

} // namespace

ScannedNumber scanNumber(const char* begin, const char* textEnd) noexcept {
    Rest rest(begin, textEnd);
    rest.skip(rest.startsWith('-') ? 1 : 0);
    const char* const first = rest.begin();
    Digits digits;
    if (!skipDigits(rest, digits)) {
        return {rest.begin()};
    }
    if (*first == '0' && digits.count != 1) {
        return {first + 1};
    }
    std::int64_t exponent = 0;
    const bool hasPoint = rest.startsWith('.');
    if (hasPoint) {
        rest.skip(1);
        const std::size_t whole = digits.count;
        if (!skipManyDigits(rest, digits)) {
            return {rest.begin()};
        }
        exponent = -static_cast<std::int64_t>(digits.count - whole);
    }
    if (rest.skipEither('e', 'E')) {
        if (!skipExponent(rest, exponent)) {
            return {rest.begin()};
        }
    } else if (!hasPoint) {
        return makeInteger(begin, rest.begin(), digits);
    }
    return makeDouble(begin, rest.begin(), digits, exponent);
}

} // namespace corvane::utils::json::decoder::detail
