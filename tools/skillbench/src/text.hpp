#pragma once

// Texts as the commands print them. All narrow text is UTF-8.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace corvane::skillbench {

[[nodiscard]] std::string inQuotes(std::string_view text);

/// The text with line breaks and other control characters as JSON escapes, so that it stays on its
/// line and the terminal takes it for text.
[[nodiscard]] std::string onOneLine(std::string_view text);
[[nodiscard]] std::string onOneLine(std::wstring_view text);

/// The text and blanks behind it up to the width, counting one place per character.
[[nodiscard]] std::string padded(std::string_view text, std::size_t width);

[[nodiscard]] std::filesystem::path pathOf(std::string_view text);
[[nodiscard]] std::string pathText(const std::filesystem::path& path);

/// "no errors", "1 error", "2 errors", ...
[[nodiscard]] std::string countText(std::uint64_t count, std::string_view singular);

/// The key, or "(root)" for the empty one.
[[nodiscard]] std::string keyText(std::string_view key);

} // namespace corvane::skillbench
