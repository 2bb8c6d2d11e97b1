#pragma once

#include <corvane/utils/export.hpp>
#include <corvane/utils/io/OutputStream.hpp>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::utils::io {

/// Writes a file all or nothing: the text goes to a temporary file beside the target, which takes
/// the target's place when the stream is closed. Until then, and when the stream is destroyed
/// without having been closed, the target is as it was.
class CORVANE_UTILS_EXPORT FileOutputStream final : public OutputStream<char> {
public:
    /// Makes the temporary file. A symbolic link is followed: the file that it names is replaced,
    /// not the link. Permissions of an existing target are kept.
    /// @throws std::system_error "cannot write PATH: REASON", as all other operations do.
    explicit FileOutputStream(std::filesystem::path path);
    /// Removes the temporary file when the stream has not been closed.
    ~FileOutputStream() override;

    /// The path as it was given (UTF-8).
    [[nodiscard]] std::string description() const override;
    [[nodiscard]] const std::filesystem::path& path() const noexcept { return path_; }

private:
    void flushBuffer() override;
    void writeLarge(std::string_view text) override;
    void closeSink() override;

    void writeBlock(std::string_view block);
    void discard() noexcept;

    std::filesystem::path path_;
    std::filesystem::path target_;
    std::filesystem::path temporary_;
    std::filebuf file_;
    std::vector<char> block_;
};

} // namespace corvane::utils::io
