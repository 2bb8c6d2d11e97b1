#pragma once

// Texts as the commands print them. All narrow text is UTF-8.

#include <corvane/workbench/host/displayText.hpp>

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace corvane::skillbench {

using workbench::host::countText;
using workbench::host::keyText;
using workbench::host::onOneLine;

[[nodiscard]] std::string inQuotes(std::string_view text);

/// The text and blanks behind it up to the width, counting one place per character.
[[nodiscard]] std::string padded(std::string_view text, std::size_t width);

[[nodiscard]] std::filesystem::path pathOf(std::string_view text);
[[nodiscard]] std::string pathText(const std::filesystem::path& path);

} // namespace corvane::skillbench
