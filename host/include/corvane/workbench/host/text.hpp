#pragma once

// Texts in problems, for those who add problems of their own.

#include <corvane/utils/io/pathText.hpp>

#include <string>
#include <string_view>

namespace corvane::workbench::host {

using utils::io::pathText;

/// The text between curly quotation marks. A very long one is cut in the middle of nowhere but at
/// the boundary of a character, and ends in an ellipsis.
[[nodiscard]] std::string inQuotes(std::string_view text);

} // namespace corvane::workbench::host
