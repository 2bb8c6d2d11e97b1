#pragma once

// Splits reference keys. A key is a sequence of components separated by "."; a component that
// begins with "[" runs to the first "]" and may contain dots. Keys are UTF-8, positions are bytes.
// Nothing here validates a key: resolution does, with messages for the user. None of these
// functions fails, and none allocates unless it says so.

#include <corvane/workbench/export.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace corvane::workbench::model::internal {

/// The end of the component that begins at `start`: the "." behind it, or the key's end. `start`
/// is an iterator of `key`. An unclosed "[" makes the component run to the key's end.
[[nodiscard]] CORVANE_WORKBENCH_EXPORT std::string_view::const_iterator
parseKeyComponent(std::string_view key, std::string_view::const_iterator start) noexcept;

/// Finds the last component of the part of `key` that begins at `start`: the "." in front of it and
/// its first character. With a single component: the key's end and nothing.
[[nodiscard]] CORVANE_WORKBENCH_EXPORT
    std::pair<std::string_view::const_iterator, std::optional<std::string_view::const_iterator>>
    splitMemberKey(std::string_view key, std::string_view::const_iterator start) noexcept;

/// Splits a member key into element key and member name. A key of a single component has no member
/// name; one that ends in "." has an empty one. The views point into `key`.
[[nodiscard]] CORVANE_WORKBENCH_EXPORT std::pair<std::string_view, std::optional<std::string_view>>
splitMemberKey(std::string_view key) noexcept;

/// The same for a key that the caller gives up: the element key keeps its memory, only the member
/// name is a new string, which may allocate.
[[nodiscard]] CORVANE_WORKBENCH_EXPORT std::pair<std::string, std::optional<std::string>>
splitMemberKey(std::string&& key);

} // namespace corvane::workbench::model::internal
