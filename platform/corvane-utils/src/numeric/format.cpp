#include <corvane/utils/numeric/format.hpp>

#include "digits.hpp"
#include "shortestDecimal.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace corvane::utils::numeric {

namespace {

/// The digits of a number below 1000, followed by how many they are.
using ShortNumber = std::array<char, 4>;

constexpr auto kShortNumbers = [] {
    std::array<ShortNumber, 1000> numbers{};
    for (std::size_t number = 0; number != numbers.size(); ++number) {
        const std::size_t count = number < 10 ? 1 : number < 100 ? 2 : 3;
        std::size_t rest = number;
        for (std::size_t index = count; index-- != 0; rest /= 10) {
            numbers[number][index] = static_cast<char>('0' + rest % 10);
        }
        numbers[number].back() = static_cast<char>(count);
    }
    return numbers;
}();

/// Writes a number below 10^8 without zeros in front; returns the end. Needs room for eight.
char* writeUpToEight(char* to, std::uint64_t number) noexcept {
    if (number < kShortNumbers.size()) {
        const ShortNumber& digits = kShortNumbers[static_cast<std::size_t>(number)];
        std::memcpy(to, digits.data(), digits.size());
        return to + digits.back();
    }
    const Digits digits = splitIntoDigits(number);
    const auto zeros = static_cast<std::size_t>(std::countr_zero(digits)) / kBitsOfADigit;
    writeDigits(to, digits >> (zeros * kBitsOfADigit));
    return to + (8 - zeros);
}

char* writeEight(char* to, std::uint64_t number) noexcept {
    writeDigits(to, splitIntoDigits(number));
    return to + 8;
}

/// Writes a number without zeros in front; returns the end. Needs room for eight, or for all its
/// digits if they are more.
char* writeWhole(char* to, std::uint64_t number) noexcept {
    if (number < kEightDigits) {
        return writeUpToEight(to, number);
    }
    const std::uint64_t high = number / kEightDigits;
    if (high < kEightDigits) {
        to = writeUpToEight(to, high);
    } else {
        to = writeUpToEight(to, high / kEightDigits);
        to = writeEight(to, high % kEightDigits);
    }
    return writeEight(to, number % kEightDigits);
}

constexpr auto kPowersOf10 = [] {
    std::array<std::uint64_t, 20> powers{1};
    for (std::size_t index = 1; index < powers.size(); ++index) {
        powers[index] = powers[index - 1] * 10;
    }
    return powers;
}();

/// Writes that many places of a number up to the last one that is not zero; returns the end.
/// Needs room for 16. @pre number != 0 and places <= 16.
char* writePlaces(char* to, std::uint64_t number, std::size_t places) noexcept {
    const std::uint64_t sixteen = number * kPowersOf10[16 - places];
    const SixteenDigits digits(sixteen / kEightDigits, sixteen % kEightDigits);
    digits.write(to);
    return to + digits.countUpToLast();
}

/// As writePlaces() does, for up to 19 places. Needs room for 24.
char* writeManyPlaces(char* to, std::uint64_t number, std::size_t places) noexcept {
    if (places <= 16) {
        return writePlaces(to, number, places);
    }
    const std::uint64_t divisor = kPowersOf10[places - 16];
    const std::uint64_t rest = number % divisor;
    if (rest == 0) {
        return writePlaces(to, number / divisor, 16);
    }
    to = writeEight(to, number / divisor / kEightDigits);
    to = writeEight(to, number / divisor % kEightDigits);
    return writePlaces(to, rest, places - 16);
}

/// What writeFixed() does for numbers with more digits before or behind the point.
char* writeLongFixed(char* to, std::uint64_t whole, std::uint64_t fraction,
                     std::size_t places) noexcept {
    // The text fits, but not what is written behind its end.
    std::array<char, 15 + 1 + 16 + 16> text;
    char* end = writeWhole(text.data(), whole);
    *end++ = '.';
    end = writeManyPlaces(end, fraction, places);
    return std::copy(text.data(), end, to);
}

/// Writes a number that is not whole with a point: "12.5", "0.00125". Needs room for 23.
/// @pre 0.001 <= number < 1e15, and whole is what is before its point.
char* writeFixed(char* to, double number, std::uint64_t whole) noexcept {
    const ShortestDecimal decimal = shortestDecimal(number);
    const auto places = static_cast<std::size_t>(-decimal.exponent);
    // The whole numbers below the shortest decimal are those below the number itself.
    const std::uint64_t fraction = decimal.digits - whole * kPowersOf10[places];
    if (places > 16 || whole >= 1'000'000) [[unlikely]] {
        return writeLongFixed(to, whole, fraction, places);
    }
    to = writeUpToEight(to, whole);
    *to++ = '.';
    return writePlaces(to, fraction, places);
}

} // namespace

string::BasicStaticString<char, 20> format(std::int64_t number) {
    string::BasicStaticString<char, 20> text;
    text.overwrite([number](char* begin, char*) {
        const auto bits = static_cast<std::uint64_t>(number);
        if (number >= 0) {
            return writeWhole(begin, bits);
        }
        *begin = '-';
        return writeWhole(begin + 1, 0 - bits);
    });
    return text;
}

string::BasicStaticString<char, 20> format(std::uint64_t number) {
    string::BasicStaticString<char, 20> text;
    text.overwrite([number](char* begin, char*) { return writeWhole(begin, number); });
    return text;
}

string::BasicStaticString<char, 24> format(double number) {
    string::BasicStaticString<char, 24> text;
    text.overwrite([number](char* begin, char* end) {
        // For these magnitudes the plain notation is never the longer one.
        const double magnitude = std::fabs(number);
        if (magnitude >= 1e-3 && magnitude < 1e15) {
            const auto whole = static_cast<std::int64_t>(magnitude);
            if (static_cast<double>(whole) != magnitude) {
                *begin = '-';
                return writeFixed(begin + (number < 0 ? 1 : 0), magnitude,
                                  static_cast<std::uint64_t>(whole));
            }
        }
        // The capacity is that of the longest number, so the conversion cannot fail.
        return std::to_chars(begin, end, number).ptr;
    });
    return text;
}

} // namespace corvane::utils::numeric
