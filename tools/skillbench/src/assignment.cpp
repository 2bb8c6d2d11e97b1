#include "assignment.hpp"

#include <cstddef>

namespace corvane::skillbench {

namespace {

std::size_t firstOutsideBrackets(std::string_view text) {
    bool inBrackets = false;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] == '[') {
            inBrackets = true;
        } else if (text[index] == ']') {
            inBrackets = false;
        } else if (text[index] == '=' && !inBrackets) {
            return index;
        }
    }
    return std::string_view::npos;
}

} // namespace

std::optional<std::pair<std::string_view, std::string_view>>
splitAssignment(std::string_view text, utils::core::function_ref<bool(std::string_view)> accepts) {
    const std::size_t first = text.find('=');
    if (first == std::string_view::npos) {
        return std::nullopt;
    }
    std::size_t split = first;
    while (split != std::string_view::npos && !accepts(text.substr(0, split))) {
        split = text.find('=', split + 1);
    }
    if (split == std::string_view::npos) {
        split = firstOutsideBrackets(text);
    }
    if (split == std::string_view::npos) {
        split = first;
    }
    return std::pair(text.substr(0, split), text.substr(split + 1));
}

} // namespace corvane::skillbench
