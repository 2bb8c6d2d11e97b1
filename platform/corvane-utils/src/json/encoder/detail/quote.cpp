#include "quote.hpp"

#include "../../../string/Utf8Sequence.hpp"
#include "../../plainText.hpp"

#include <cstddef>

namespace corvane::utils::json::encoder::detail {

namespace {

[[nodiscard]] bool isAscii(char byte) noexcept {
    return static_cast<unsigned char>(byte) < 0x80;
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
    while ((position = skipPlainBytes(position, end)) != end) {
        if (isAscii(*position)) {
            writeRun();
            writeEscape(stream, *position);
            written = ++position;
            continue;
        }
        position = skipShortSequences(position, end);
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
