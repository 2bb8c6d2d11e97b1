#include <corvane/workbench/host/text.hpp>

namespace corvane::workbench::host {

std::string inQuotes(std::string_view text) {
    constexpr std::size_t kLongest = 200;
    std::string result = "“";
    if (text.size() <= kLongest) {
        result += text;
    } else {
        std::size_t length = kLongest;
        while (length != 0 && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U) {
            --length;
        }
        result += text.substr(0, length);
        result += "…";
    }
    result += "”";
    return result;
}

} // namespace corvane::workbench::host
