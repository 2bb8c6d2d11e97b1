#pragma once

#include <cstddef>
#include <cstdint>

namespace corvane::utils::string {

/// One step of reading UTF-8 from memory or writing it. Reading must divide malformed text just as
/// string::detail::Utf8Decoder does.
struct Utf8Sequence {
    /// U+FFFD when the bytes are malformed.
    char32_t character;
    std::uint8_t length;
    bool isWellFormed;
};

/// Reads the well-formed sequence, or the maximal malformed one, at the start of [begin, end).
/// @pre begin != end.
[[nodiscard]] inline Utf8Sequence readUtf8Sequence(const char* begin, const char* end) noexcept {
    const auto byteAt = [begin](std::size_t index) {
        return static_cast<std::uint8_t>(begin[index]);
    };
    const std::uint8_t first = byteAt(0);
    if (first < 0x80) {
        return {first, 1, true};
    }
    const auto available = static_cast<std::size_t>(end - begin);
    // Most sequences are of two or three bytes and well-formed; the loop below knows all.
    const auto continuationAt = [&](std::size_t index) { return byteAt(index) ^ 0x80U; };
    if (first >= 0xE0 && first < 0xF0 && available >= 3) {
        const char32_t second = continuationAt(1);
        const char32_t third = continuationAt(2);
        const char32_t character = ((first & 0x0FU) << 12U) | (second << 6U) | third;
        if ((second | third) < 0x40 && character >= 0x800 && (character & 0xF800U) != 0xD800) {
            return {character, 3, true};
        }
    } else if (first >= 0xC2 && first < 0xE0 && available >= 2 && continuationAt(1) < 0x40) {
        return {((first & 0x1FU) << 6U) | continuationAt(1), 2, true};
    }
    std::uint8_t length = 0;
    std::uint8_t lower = 0x80;
    std::uint8_t upper = 0xBF;
    char32_t character = 0;
    if (first >= 0xC2 && first <= 0xDF) {
        length = 2;
        character = first & 0x1FU;
    } else if (first >= 0xE0 && first <= 0xEF) {
        length = 3;
        character = first & 0x0FU;
        lower = first == 0xE0 ? 0xA0 : 0x80; // no overlong form
        upper = first == 0xED ? 0x9F : 0xBF; // no surrogate
    } else if (first >= 0xF0 && first <= 0xF4) {
        length = 4;
        character = first & 0x07U;
        lower = first == 0xF0 ? 0x90 : 0x80; // no overlong form
        upper = first == 0xF4 ? 0x8F : 0xBF; // nothing above U+10FFFF
    } else {
        return {U'\uFFFD', 1, false};
    }
    for (std::uint8_t index = 1; index != length; ++index) {
        if (index == available || byteAt(index) < lower || byteAt(index) > upper) {
            return {U'\uFFFD', index, false};
        }
        character = (character << 6U) | (byteAt(index) & 0x3FU);
        lower = 0x80;
        upper = 0xBF;
    }
    return {character, length, true};
}

/// Writes one to four bytes; returns the end. @pre The character is no surrogate.
[[nodiscard]] inline char* writeUtf8Sequence(char* to, char32_t character) noexcept {
    const auto put = [&to](char32_t byte) { *to++ = static_cast<char>(byte); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0U | (character >> 6U));
        put(0x80U | (character & 0x3FU));
    } else if (character < 0x10000) {
        put(0xE0U | (character >> 12U));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    } else {
        put(0xF0U | (character >> 18U));
        put(0x80U | ((character >> 12U) & 0x3FU));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    }
    return to;
}

} // namespace corvane::utils::string
