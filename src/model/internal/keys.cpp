#include <corvane/workbench/model/internal/keys.hpp>

#include <algorithm>

namespace corvane::workbench::model::internal {

std::string_view::const_iterator
parseKeyComponent(std::string_view key, std::string_view::const_iterator start) noexcept {
    if (start != key.end() && *start == '[') {
        start = std::find(start, key.end(), ']');
    }
    return std::find(start, key.end(), '.');
}

std::pair<std::string_view::const_iterator, std::optional<std::string_view::const_iterator>>
splitMemberKey(std::string_view key, std::string_view::const_iterator start) noexcept {
    auto separator = parseKeyComponent(key, start);
    if (separator == key.end()) {
        return {separator, std::nullopt};
    }
    for (auto next = parseKeyComponent(key, separator + 1); next != key.end();
         next = parseKeyComponent(key, separator + 1)) {
        separator = next;
    }
    return {separator, separator + 1};
}

std::pair<std::string_view, std::optional<std::string_view>>
splitMemberKey(std::string_view key) noexcept {
    const auto [separator, member] = splitMemberKey(key, key.begin());
    if (!member) {
        return {key, std::nullopt};
    }
    return {std::string_view(key.begin(), separator), std::string_view(*member, key.end())};
}

std::pair<std::string, std::optional<std::string>> splitMemberKey(std::string&& key) {
    const auto [elementKey, member] = splitMemberKey(std::string_view(key));
    if (!member) {
        return {std::move(key), std::nullopt};
    }
    std::optional<std::string> memberName(*member);
    key.resize(elementKey.size());
    return {std::move(key), std::move(memberName)};
}

} // namespace corvane::workbench::model::internal
