#pragma once

// Texts as tools and tests print them. All narrow text is UTF-8.

#include <cstdint>
#include <string>
#include <string_view>

namespace corvane::workbench::host {

/// The text with line breaks and other control characters as JSON escapes, so that it stays on its
/// line and a terminal takes it for text.
/// @{
[[nodiscard]] std::string onOneLine(std::string_view text);
[[nodiscard]] std::string onOneLine(std::wstring_view text);
/// @}

/// "no errors", "1 error", "2 errors", ...
[[nodiscard]] std::string countText(std::uint64_t count, std::string_view singular);

/// The key, or "(root)" for the empty one.
[[nodiscard]] std::string keyText(std::string_view key);

} // namespace corvane::workbench::host
