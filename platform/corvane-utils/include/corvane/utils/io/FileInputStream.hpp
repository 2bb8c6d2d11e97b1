#pragma once

#include <corvane/utils/export.hpp>
#include <corvane/utils/io/InputStream.hpp>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::utils::io {

/// Reads a file, in big blocks, byte for byte.
class CORVANE_UTILS_EXPORT FileInputStream final : public InputStream<char> {
public:
    /// Opens the file.
    /// @throws std::system_error when it cannot be opened or is a directory. The text is
    ///         "cannot open PATH: REASON".
    explicit FileInputStream(std::filesystem::path path);
    ~FileInputStream() override;

    /// The path (UTF-8).
    [[nodiscard]] std::string description() const override;
    /// The path as it was given.
    [[nodiscard]] const std::filesystem::path& path() const noexcept { return path_; }

private:
    /// Reading errors are std::system_error "cannot read PATH: REASON".
    bool refill() override;
    std::string_view readRestInto(std::string& storage) override;
    [[nodiscard]] std::size_t readBlock(char* to, std::size_t count);

    std::filesystem::path path_;
    std::filebuf file_;
    std::vector<char> block_;
};

} // namespace corvane::utils::io
