#pragma once

// Member names that are chosen to meet in a hash table.

#include <bit>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace corvane::tests {

/// So many different names that a table with two slots a name would have them all begin in one
/// part of 256, found by trying.
template <class Hash>
[[nodiscard]] std::vector<std::string> findCollidingNames(std::size_t count, const Hash& hash) {
    const std::size_t slots = std::bit_ceil(2 * count);
    std::vector<std::string> names;
    names.reserve(count);
    for (std::size_t number = 0; names.size() != count; ++number) {
        std::string name = "n" + std::to_string(number);
        if (hash(name) % slots < slots / 256) {
            names.push_back(std::move(name));
        }
    }
    return names;
}

/// Names as long as those, which nobody has chosen.
[[nodiscard]] inline std::vector<std::string>
ordinaryNamesLike(const std::vector<std::string>& names) {
    std::vector<std::string> ordinary;
    ordinary.reserve(names.size());
    for (const std::string& name : names) {
        const std::string number = std::to_string(ordinary.size());
        ordinary.push_back("o" + std::string(name.size() - 1 - number.size(), '0') + number);
    }
    return ordinary;
}

/// {"n1":1,"n2":1,…}
[[nodiscard]] inline std::string objectWithNames(const std::vector<std::string>& names) {
    std::string text = "{";
    for (const std::string& name : names) {
        text.append(text.size() == 1 ? "\"" : ",\"").append(name).append("\":1");
    }
    return text + "}";
}

} // namespace corvane::tests
