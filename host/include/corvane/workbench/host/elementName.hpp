#pragma once

// Which names an element may have: those that a key can carry.

#include <tl/expected.hpp>

#include <string>
#include <string_view>

namespace corvane::workbench::host {

/// Nothing when the name (UTF-8) can be one component of a key, otherwise the reason why not, in a
/// sentence for the user. A name is not empty; one that contains "." or begins with "[" is
/// enclosed in brackets, with something between them and no "]" before the last character.
[[nodiscard]] tl::expected<void, std::string> checkElementName(std::string_view name);

} // namespace corvane::workbench::host
