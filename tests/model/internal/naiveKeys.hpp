#pragma once

// Splits keys the plain way, component by component, to judge the library's splitting by.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace corvane::tests {

/// The components of a key, which may be empty; joined with "." they are the key again.
inline std::vector<std::string> naiveComponents(std::string_view key) {
    std::vector<std::string> components(1);
    bool inBrackets = false;
    for (const char character : key) {
        std::string& component = components.back();
        if (character == '.' && !inBrackets) {
            components.emplace_back();
            continue;
        }
        if (character == '[' && component.empty()) {
            inBrackets = true;
        } else if (character == ']') {
            inBrackets = false;
        }
        component += character;
    }
    return components;
}

inline std::pair<std::string, std::optional<std::string>> naiveSplit(std::string_view key) {
    std::vector<std::string> components = naiveComponents(key);
    if (components.size() == 1) {
        return {std::move(components.front()), std::nullopt};
    }
    std::optional<std::string> member = std::move(components.back());
    components.pop_back();
    std::string element = components.front();
    for (std::size_t i = 1; i < components.size(); ++i) {
        element += '.';
        element += components[i];
    }
    return {std::move(element), std::move(member)};
}

} // namespace corvane::tests
