// Text as strings of JSON.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include <corvane/utils/io/OutputStream.hpp>

#include "Block.hpp"

namespace corvane::utils::json::encoder::detail {

/// Copies a text of clean bytes; returns false, with some of it copied, when there are others.
template <class Block>
[[nodiscard]] bool copyIfClean(std::string_view text, char* to) noexcept {
    const char* from = text.data();
    std::size_t size = text.size();
    for (; size > 16; size -= 16, from += 16, to += 16) {
        const Block block(from);
        block.copyTo(to);
        if (!block.isClean()) {
            return false;
        }
    }
    // What is left is copied by its beginning and its end, which may overlap.
    constexpr std::uint64_t blanks = 0x2020'2020'2020'2020U;
    if (size >= 8) {
        const auto first = load<std::uint64_t>(from);
        const auto last = load<std::uint64_t>(from + size - 8);
        store(to, first);
        store(to + size - 8, last);
        return Block(first, last).isClean();
    }
    if (size >= 4) {
        const auto first = load<std::uint32_t>(from);
        const auto last = load<std::uint32_t>(from + size - 4);
        store(to, first);
        store(to + size - 4, last);
        return Block(first | std::uint64_t{last} << 32U, blanks).isClean();
    }
    if (size != 0) {
        const char first = from[0];
        const char middle = from[size / 2];
        const char last = from[size - 1];
        to[0] = first;
        to[size / 2] = middle;
        to[size - 1] = last;
        const auto code = [](char byte) { return std::uint64_t{static_cast<unsigned char>(byte)}; };
        return Block(code(first) | code(middle) << 8U | code(last) << 16U | blanks << 24U, blanks)
            .isClean();
    }
    return true;
}

/// Writes a string of clean bytes; returns the end, or null when there are others.
/// @pre There is room for the text and two quotes.
[[nodiscard]] inline char* quoteIfClean(std::string_view text, char* to) noexcept {
    *to++ = '"';
    if (!copyIfClean<Block>(text, to)) {
        return nullptr;
    }
    to += text.size();
    *to++ = '"';
    return to;
}

/// Writes any text as a string.
void writeQuoted(io::OutputStream<char>& stream, std::string_view text);

} // namespace corvane::utils::json::encoder::detail
