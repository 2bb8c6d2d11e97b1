#pragma once

// Text as strings of JSON.

#include "../../plainText.hpp"
#include <corvane/utils/io/OutputStream.hpp>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace corvane::utils::json::encoder::detail {

/// Copies up to seven bytes; returns whether all are plain.
[[nodiscard]] inline bool copyShortIfPlain(const char* from, std::size_t size, char* to) noexcept {
    // All of them are collected in one word, some of them twice.
    std::uint64_t bytes = 0;
    if (size >= 4) {
        const auto first = load<std::uint32_t>(from);
        const auto last = load<std::uint32_t>(from + size - 4);
        store(to, first);
        store(to + size - 4, last);
        bytes = first | std::uint64_t{last} << 32U;
    } else if (size != 0) {
        bytes = ' ' * kOnes;
        for (const std::size_t place : {std::size_t{0}, size / 2, size - 1}) {
            to[place] = from[place];
            bytes = bytes << 8U | static_cast<unsigned char>(from[place]);
        }
    } else {
        return true;
    }
    return specialBytes(bytes) == 0;
}

/// Copies a text; returns false, with some of it copied, unless all bytes are plain.
[[nodiscard]] inline bool copyIfPlain(std::string_view text, char* to) noexcept {
    const char* from = text.data();
    std::size_t size = text.size();
    const auto copyWord = [&](std::size_t place) {
        const auto bytes = loadEightBytes(from + place);
        store(to + place, bytes);
        return specialBytes(bytes);
    };
    for (; size > 2 * kEight; size -= 2 * kEight, from += 2 * kEight, to += 2 * kEight) {
        if ((copyWord(0) | copyWord(kEight)) != 0) {
            return false;
        }
    }
    if (size >= kEight) {
        // The last two words may overlap.
        return (copyWord(0) | copyWord(size - kEight)) == 0;
    }
    return copyShortIfPlain(from, size, to);
}

/// Writes a string of plain bytes; returns the end, or null when there are others.
/// @pre There is room for the text and two quotes.
[[nodiscard]] inline char* quoteIfPlain(std::string_view text, char* to) noexcept {
    *to++ = '"';
    if (!copyIfPlain(text, to)) {
        return nullptr;
    }
    to += text.size();
    *to++ = '"';
    return to;
}

/// Writes any text as a string.
void writeQuoted(io::OutputStream<char>& stream, std::string_view text);

} // namespace corvane::utils::json::encoder::detail
