#pragma once

#include <atomic>
#include <filesystem>

namespace corvane::utils::io {

/// The name of a file that must not stay when the process ends early: removed with the object, and
/// by removeTemporaryFiles(). The file itself is made and closed by others.
class TemporaryFile {
public:
    /// Takes charge of the name; there need not be such a file yet.
    explicit TemporaryFile(std::filesystem::path path) noexcept;
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    [[nodiscard]] const std::filesystem::path& path() const noexcept { return path_; }
    /// There is no such file any more, because it has got another name.
    void release() noexcept { released_ = true; }

private:
    const std::filesystem::path path_;
    /// Where removeTemporaryFiles() finds the name; null when there was no room.
    std::atomic<const std::filesystem::path::value_type*>* slot_;
    bool released_ = false;
};

} // namespace corvane::utils::io
