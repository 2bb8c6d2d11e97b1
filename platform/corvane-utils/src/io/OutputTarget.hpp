#pragma once

#include <filesystem>

namespace corvane::utils::io {

/// Where the path of an output leads to. Paths are system paths; what fails is thrown as
/// std::system_error without a text.
struct OutputTarget {
    enum class Kind {
        /// There is nothing yet.
        New,
        /// A regular file, which another one may replace.
        File,
        /// A device, a pipe or a socket, which can only be written into.
        Stream
    };

    /// Behind all symbolic links of a file's last component, also when the last of them leads to
    /// nothing.
    std::filesystem::path path;
    Kind kind = Kind::New;
    /// Somebody does not want the file to be changed, even where this program could do it.
    bool isReadOnly = false;
};

/// @throws std::system_error when the path leads to a directory.
[[nodiscard]] OutputTarget findOutputTarget(const std::filesystem::path& path);

/// Puts a complete file in the target's place, at once, and waits until the disk knows it. Both are
/// in the same folder.
void replaceTarget(const OutputTarget& target, const std::filesystem::path& file);

} // namespace corvane::utils::io
