#include <corvane/utils/numeric/format.hpp>

#include "shortestDecimal.hpp"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <optional>
#include <string_view>

namespace corvane::utils::numeric {

namespace {

/// "00" to "99".
constexpr auto kPairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t number = 0; number < 100; ++number) {
        pairs[2 * number] = static_cast<char>('0' + number / 10);
        pairs[2 * number + 1] = static_cast<char>('0' + number % 10);
    }
    return pairs;
}();

void writePair(char* to, std::uint32_t number) noexcept {
    std::memcpy(to, &kPairs[2 * std::size_t{number}], 2);
}

/// Writes eight digits, zeros in front included.
void writeEight(char* to, std::uint32_t number) noexcept {
    const std::uint32_t high = number / 10'000;
    const std::uint32_t low = number % 10'000;
    writePair(to, high / 100);
    writePair(to + 2, high % 100);
    writePair(to + 4, low / 100);
    writePair(to + 6, low % 100);
}

constexpr auto kPowersOf10 = [] {
    std::array<std::uint64_t, 20> powers{1};
    for (std::size_t index = 1; index < powers.size(); ++index) {
        powers[index] = powers[index - 1] * 10;
    }
    return powers;
}();

[[nodiscard]] std::size_t countDigits(std::uint64_t number) noexcept {
    // 1233 / 4096 is a little more than log10(2).
    const auto estimate = static_cast<std::size_t>(std::bit_width(number)) * 1233 / 4096;
    return estimate + (number >= kPowersOf10[estimate] ? 1 : 0);
}

/// Writes that many digits of a number, zeros in front included.
void writePadded(char* to, std::uint64_t number, std::size_t count) noexcept {
    char* end = to + count;
    for (; count >= 8; count -= 8) {
        end -= 8;
        writeEight(end, static_cast<std::uint32_t>(number % 100'000'000));
        number /= 100'000'000;
    }
    auto rest = static_cast<std::uint32_t>(number);
    for (; count >= 2; count -= 2) {
        end -= 2;
        writePair(end, rest % 100);
        rest /= 100;
    }
    if (count == 1) {
        *to = static_cast<char>('0' + rest);
    }
}

/// Writes a number; returns the end.
char* writeWhole(char* to, std::uint64_t number) noexcept {
    const std::size_t count = countDigits(number | 1);
    writePadded(to, number, count);
    return to + count;
}

/// Writes digits × 10^exponent, -20 < exponent < 0, with a point: "12.5", "0.00125". The whole
/// numbers below it are those below the number that it is the shortest decimal of.
char* writeFixed(char* to, double number, const ShortestDecimal& decimal) noexcept {
    const auto places = static_cast<std::size_t>(-decimal.exponent);
    const auto whole = static_cast<std::uint64_t>(number);
    to = writeWhole(to, whole);
    *to++ = '.';
    writePadded(to, decimal.digits - whole * kPowersOf10[places], places);
    return to + places;
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
        // For the magnitudes answered the plain notation is never the longer one.
        const double magnitude = std::fabs(number);
        if (const std::optional<ShortestDecimal> decimal = shortestDecimal(magnitude)) {
            if (number < 0) {
                *begin++ = '-';
            }
            return writeFixed(begin, magnitude, *decimal);
        }
        // The capacity is that of the longest number, so the conversion cannot fail.
        return std::to_chars(begin, end, number).ptr;
    });
    return text;
}

} // namespace corvane::utils::numeric
