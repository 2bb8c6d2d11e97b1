#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

namespace corvane::utils::io {

/// A file that is open for writing, without a buffer: what the system offers, in one form for both
/// platforms. Paths are system paths. What fails is thrown as std::system_error without a text.
class OutputFile {
public:
    /// Makes a file that there is not yet. Fails with std::errc::file_exists when there is one.
    [[nodiscard]] static OutputFile create(const std::filesystem::path& path);
    /// Opens what is there: a device, a pipe, a socket. Waits for the reader of a pipe.
    [[nodiscard]] static OutputFile open(const std::filesystem::path& path);

    OutputFile(OutputFile&& other) noexcept : handle_(std::exchange(other.handle_, kNone)) {}
    OutputFile& operator=(OutputFile&&) = delete;
    ~OutputFile();

    void write(std::string_view text) const;
    /// Waits until the disk has what was written.
    void flushToDisk() const;
    /// Takes over owner and mode of another file, where the platform has them in the file and does
    /// not do it when the file takes the other one's place.
    void takeAccessFrom(const std::filesystem::path& other) const;
    void close();

private:
#ifdef _WIN32
    using Handle = void*;
    static inline const Handle kNone = nullptr;
#else
    using Handle = int;
    static constexpr Handle kNone = -1;
#endif

    explicit OutputFile(Handle handle) noexcept : handle_(handle) {}

    Handle handle_;
};

} // namespace corvane::utils::io
