#pragma once

// Paths as UTF-8, whatever the platform's narrow encoding is.

#include <filesystem>
#include <string>
#include <string_view>

namespace corvane::utils::io {

/// The path as the user would write it.
[[nodiscard]] inline std::string pathText(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

/// The path that a user means who writes the text.
[[nodiscard]] inline std::filesystem::path pathOf(std::string_view text) {
    return std::u8string(text.begin(), text.end());
}

} // namespace corvane::utils::io
