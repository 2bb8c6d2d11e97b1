#include <corvane/workbench/host/displayText.hpp>

#include <corvane/utils/string/transcode.hpp>

namespace corvane::workbench::host {

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

} // namespace corvane::workbench::host
