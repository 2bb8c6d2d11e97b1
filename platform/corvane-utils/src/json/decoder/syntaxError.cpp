#include "syntaxError.hpp"

#include "../../string/Utf8Sequence.hpp"
#include <corvane/utils/json/decoder/detail/WrappedException.hpp>

#include <cstdint>
#include <stdexcept>

namespace corvane::utils::json::decoder::detail {

namespace {

[[nodiscard]] std::string hexadecimal(std::uint32_t number, std::size_t digits) {
    static constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    while (digits-- != 0) {
        text.push_back(kDigits[(number >> (4 * digits)) & 0x0FU]);
    }
    return text;
}

} // namespace

void throwSyntaxError(const Tape& tape, std::size_t offset, std::string_view what) {
    const Location location = tape.locate(offset);
    std::string text = "JSON syntax error (line " + std::to_string(location.line()) + "): ";
    text += what;
    throw WrappedException<std::runtime_error>(location, std::runtime_error(text));
}

std::string describeUnexpected(std::string_view rest) {
    if (rest.empty()) {
        return "unexpected end of the text";
    }
    const auto first = static_cast<unsigned char>(rest.front());
    if (first < 0x20 || first == 0x7F) {
        return "unexpected control character U+" + hexadecimal(first, 4);
    }
    const auto sequence = string::readUtf8Sequence(rest.data(), rest.data() + rest.size());
    if (!sequence.isWellFormed) {
        return "malformed UTF-8 at byte 0x" + hexadecimal(first, 2);
    }
    std::string text = "unexpected character ";
    const char quote = first == '\'' ? '"' : '\'';
    text += quote;
    text += rest.substr(0, sequence.length);
    text += quote;
    return text;
}

} // namespace corvane::utils::json::decoder::detail
