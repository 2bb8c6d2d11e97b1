#pragma once

// Texts in problems.

#include <filesystem>
#include <string>
#include <string_view>

namespace corvane::workbench::host {

/// The path in UTF-8, as the user would write it.
[[nodiscard]] std::string pathText(const std::filesystem::path& path);

/// The text between curly quotation marks. A very long one is cut in the middle of nowhere but at
/// the boundary of a character, and ends in an ellipsis.
[[nodiscard]] std::string inQuotes(std::string_view text);

} // namespace corvane::workbench::host
