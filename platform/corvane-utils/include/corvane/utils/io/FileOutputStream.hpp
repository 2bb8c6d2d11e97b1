#pragma once

#include <corvane/utils/export.hpp>
#include <corvane/utils/io/OutputStream.hpp>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::utils::io {

/// Writes a file all or nothing: the text goes to a temporary file beside the target, which takes
/// the target's place, in one step and on disk, when the stream is closed. Until then, and when the
/// stream is destroyed without having been closed, the target is as it was. The temporary file is
/// removed then; a program that may be interrupted calls removeTemporaryFiles().
///
/// Owner and mode (on Windows: attributes and rights) of an existing target are kept. Symbolic
/// links are followed: what they lead to is replaced or made, not the link; on Windows it must be
/// there. Whatever is no regular file, such as a device, a pipe or a socket, cannot be replaced:
/// there the text is written as it comes.
class CORVANE_UTILS_EXPORT FileOutputStream final : public OutputStream<char> {
public:
    /// Makes the temporary file. A target that is read-only, or whose owner cannot be kept, is
    /// refused.
    /// @throws std::system_error "cannot write PATH: REASON", as all other operations do.
    explicit FileOutputStream(std::filesystem::path path);
    /// Removes the temporary file when the stream has not been closed.
    ~FileOutputStream() override;

    /// The path as it was given (UTF-8).
    [[nodiscard]] std::string description() const override;
    [[nodiscard]] const std::filesystem::path& path() const noexcept { return path_; }

private:
    class Sink;

    void flushBuffer() override;
    void writeLarge(std::string_view text) override;
    void closeSink() override;

    void writeBlock(std::string_view block);
    template <class Step>
    void attempt(Step&& step, const char* clause = "");
    /// Throws when an earlier step has failed.
    void requireSink() const;

    std::filesystem::path path_;
    std::vector<char> block_;
    /// Null when the stream was closed or something has failed.
    std::unique_ptr<Sink> sink_;
};

} // namespace corvane::utils::io
