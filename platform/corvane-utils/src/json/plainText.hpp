#pragma once

// The text of JSON strings, as far as it is the same when it is read and when it is written.

#include "eightBytes.hpp"

#include <cstddef>
#include <cstdint>

namespace corvane::utils::json {

/// Goes behind the bytes that stand for themselves.
[[nodiscard]] inline const char* skipPlainBytes(const char* position, const char* end) noexcept {
    while (end - position >= static_cast<std::ptrdiff_t>(kEight)) {
        const std::size_t count = countPlainBytes(loadEightBytes(position));
        position += count;
        if (count != kEight) {
            return position;
        }
    }
    const auto isPlain = [](char character) {
        const auto byte = static_cast<unsigned char>(character);
        return byte >= 0x20 && byte < 0x80 && byte != '"' && byte != '\\';
    };
    while (position != end && isPlain(*position)) {
        ++position;
    }
    return position;
}

/// Whether eight bytes begin with two sequences of three bytes that are well-formed without a
/// second look: after E0 and ED not all continuations are.
[[nodiscard]] constexpr bool beginWithTwoTriples(std::uint64_t bytes) noexcept {
    constexpr std::uint64_t shape = 0x8080'E080'80E0U;
    constexpr std::uint64_t shapeMask = 0xC0C0'F0C0'C0F0U;
    constexpr unsigned restricted = (1U << 0x0U) | (1U << 0xDU);
    const unsigned leads =
        (restricted >> (bytes & 0x0FU)) | (restricted >> ((bytes >> 24U) & 0x0FU));
    return (bytes & shapeMask) == shape && (leads & 1U) == 0;
}

/// Goes behind the well-formed sequences of two or three bytes, as far as they can be told
/// without a second look.
[[nodiscard]] inline const char* skipShortSequences(const char* position,
                                                    const char* end) noexcept {
    while (end - position >= static_cast<std::ptrdiff_t>(kEight) &&
           beginWithTwoTriples(loadEightBytes(position))) {
        position += 6;
    }
    const auto byteAt = [&](std::size_t index) {
        return static_cast<unsigned char>(position[index]);
    };
    const auto continues = [&](std::size_t index) { return (byteAt(index) & 0xC0U) == 0x80; };
    while (end - position >= 3) {
        const unsigned char first = byteAt(0);
        if (first > 0xE0 && first < 0xF0 && first != 0xED && continues(1) && continues(2)) {
            position += 3;
        } else if (first >= 0xC2 && first < 0xE0 && continues(1)) {
            position += 2;
        } else {
            break;
        }
    }
    return position;
}

} // namespace corvane::utils::json
