#include "text.hpp"

#include <corvane/utils/string/transcode.hpp>

#include <algorithm>

namespace corvane::skillbench {

std::string onOneLine(std::string_view text) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string result;
    result.reserve(text.size());
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (character == '\n') {
            result += "\\n";
        } else if (character == '\t') {
            result += "\\t";
        } else if (character == '\r') {
            result += "\\r";
        } else if (byte < 0x20 || byte == 0x7f) {
            result += "\\u00";
            result += kDigits[byte >> 4U];
            result += kDigits[byte & 0xFU];
        } else {
            result += character;
        }
    }
    return result;
}

std::string onOneLine(std::wstring_view text) {
    return onOneLine(utils::string::toUtf8(text));
}

std::string padded(std::string_view text, std::size_t width) {
    const auto characters =
        static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char character) {
            return (static_cast<unsigned char>(character) & 0xC0U) != 0x80U;
        }));
    return std::string(text) + std::string(width - std::min(width, characters), ' ');
}

std::string countText(std::uint64_t count, std::string_view singular) {
    std::string result = count == 0 ? "no" : std::to_string(count);
    result += ' ';
    result += singular;
    if (count != 1) {
        result += 's';
    }
    return result;
}

std::string keyText(std::string_view key) {
    return key.empty() ? "(root)" : std::string(key);
}

} // namespace corvane::skillbench
