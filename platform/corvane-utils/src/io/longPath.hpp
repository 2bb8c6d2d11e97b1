#pragma once

// The form in which Windows takes paths of any length.

#include <string>
#include <string_view>

namespace corvane::utils::io {

/// From here on a path needs that form. Windows takes 259 characters; the rest is for the name of
/// a temporary file beside the path.
inline constexpr std::size_t kLongPath = 240;

/// A full path (drive or server, no "." and "..", separated by backslashes) with the prefix that
/// lifts the limit when it is long. Shorter ones stay as they are: other programs of the system
/// show and take them.
[[nodiscard]] inline std::wstring longPath(std::wstring fullPath) {
    if (fullPath.size() < kLongPath || fullPath.starts_with(LR"(\\?\)") ||
        fullPath.starts_with(LR"(\\.\)")) {
        return fullPath;
    }
    if (fullPath.starts_with(LR"(\\)")) {
        return LR"(\\?\UNC\)" + fullPath.substr(2);
    }
    return LR"(\\?\)" + fullPath;
}

} // namespace corvane::utils::io
