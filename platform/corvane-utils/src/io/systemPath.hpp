#pragma once

// Paths as they are handed to the system.

#include <filesystem>

namespace corvane::utils::io {

/// The path in a form that the system takes whatever its length. Only Windows needs another one
/// than the given, and only for long paths.
[[nodiscard]] std::filesystem::path systemPath(const std::filesystem::path& path);

} // namespace corvane::utils::io
