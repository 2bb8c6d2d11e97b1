#pragma once

// Texts as the commands print them. All narrow text is UTF-8.

#include <corvane/utils/io/pathText.hpp>
#include <corvane/workbench/host/text.hpp>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace corvane::skillbench {

using utils::io::pathOf;
using utils::io::pathText;
using workbench::host::inQuotes;

/// The text with line breaks and other control characters as JSON escapes, so that it stays on its
/// line and the terminal takes it for text.
[[nodiscard]] std::string onOneLine(std::string_view text);
[[nodiscard]] std::string onOneLine(std::wstring_view text);

/// The text and spaces behind it up to the width, counting one place per character.
[[nodiscard]] std::string padded(std::string_view text, std::size_t width);

/// "no errors", "1 error", "2 errors", ...
[[nodiscard]] std::string countText(std::uint64_t count, std::string_view singular);

/// The key, or "(root)" for the empty one.
[[nodiscard]] std::string keyText(std::string_view key);

} // namespace corvane::skillbench
