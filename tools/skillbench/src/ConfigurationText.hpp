#pragma once

#include <cstddef>
#include <filesystem>
#include <iosfwd>
#include <string>
#include <string_view>

namespace corvane::skillbench {

/// The text of a configuration as it was read: that of a file, or, for "-", all of the standard
/// input.
class ConfigurationText {
public:
    /// Throws a Failure when it cannot be read.
    ConfigurationText(const std::string& argument, std::istream& standardInput);

    /// "-" for the standard input.
    [[nodiscard]] const std::filesystem::path& file() const noexcept { return file_; }
    [[nodiscard]] bool isStandardInput() const noexcept;
    [[nodiscard]] std::string_view text() const noexcept { return text_; }
    /// The text is not needed any more.
    void forgetText() noexcept;

    /// Whether the path leads to the file that was read.
    [[nodiscard]] bool isFile(const std::filesystem::path& path) const;
    /// Whether the file holds another text than the one that was read, or is gone.
    [[nodiscard]] bool hasChanged() const;

private:
    std::filesystem::path file_;
    std::string text_;
    // What remains of the text.
    std::size_t size_;
    std::size_t hash_;
};

} // namespace corvane::skillbench
