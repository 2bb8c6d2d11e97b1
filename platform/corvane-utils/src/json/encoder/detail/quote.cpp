#include "quote.hpp"

#include <bit>
#include <cstddef>
#include <cstdint>

#include "../../../string/Utf8Sequence.hpp"

namespace corvane::utils::json::encoder::detail {

namespace {

[[nodiscard]] bool isAscii(char byte) noexcept {
    return static_cast<unsigned char>(byte) < 0x80;
}

/// Behind the clean bytes.
[[nodiscard]] const char* skipClean(const char* position, const char* end) noexcept {
    for (; end - position >= 8; position += 8) {
        if (const std::uint64_t unclean = uncleanBytes(load<std::uint64_t>(position))) {
            if constexpr (std::endian::native == std::endian::little) {
                return position + std::countr_zero(unclean) / 8;
            }
            break;
        }
    }
    const auto isClean = [](char byte) {
        return byte >= 0x20 && isAscii(byte) && byte != '"' && byte != '\\';
    };
    while (position != end && isClean(*position)) {
        ++position;
    }
    return position;
}

/// Behind the well-formed sequences of two or three bytes, as far as they can be told without a
/// second look.
[[nodiscard]] const char* skipPlainSequences(const char* position, const char* end) noexcept {
    if constexpr (std::endian::native == std::endian::little) {
        // Two of three bytes at once. What may follow E0 and ED is restricted.
        constexpr std::uint64_t shape = 0x8080'E080'80E0U;
        constexpr std::uint64_t shapeMask = 0xC0C0'F0C0'C0F0U;
        constexpr unsigned restricted = (1U << 0x0U) | (1U << 0xDU);
        while (end - position >= 8) {
            const auto bytes = load<std::uint64_t>(position);
            const unsigned leads =
                (restricted >> (bytes & 0x0FU)) | (restricted >> ((bytes >> 24U) & 0x0FU));
            if ((bytes & shapeMask) != shape || (leads & 1U) != 0) {
                break;
            }
            position += 6;
        }
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

void writeEscape(io::OutputStream<char>& stream, char character) {
    static constexpr std::string_view kDigits = "0123456789abcdef";
    switch (character) {
    case '"':
        return stream.write("\\\"");
    case '\\':
        return stream.write("\\\\");
    case '\b':
        return stream.write("\\b");
    case '\f':
        return stream.write("\\f");
    case '\n':
        return stream.write("\\n");
    case '\r':
        return stream.write("\\r");
    case '\t':
        return stream.write("\\t");
    default: {
        const auto code = static_cast<unsigned char>(character);
        stream.write("\\u00");
        stream.put(kDigits[code >> 4U]);
        stream.put(kDigits[code & 0x0FU]);
    }
    }
}

} // namespace

void writeQuoted(io::OutputStream<char>& stream, std::string_view text) {
    stream.put('"');
    const char* position = text.data();
    const char* const end = position + text.size();
    const char* written = position;
    const auto writeRun = [&] {
        stream.write({written, static_cast<std::size_t>(position - written)});
    };
    while ((position = skipClean(position, end)) != end) {
        if (isAscii(*position)) {
            writeRun();
            writeEscape(stream, *position);
            written = ++position;
            continue;
        }
        position = skipPlainSequences(position, end);
        if (position == end || isAscii(*position)) {
            continue;
        }
        const auto sequence = string::readUtf8Sequence(position, end);
        if (!sequence.isWellFormed) {
            writeRun();
            stream.write("\xEF\xBF\xBD"); // U+FFFD
            written = position + sequence.length;
        }
        position += sequence.length;
    }
    writeRun();
    stream.put('"');
}

} // namespace corvane::utils::json::encoder::detail
