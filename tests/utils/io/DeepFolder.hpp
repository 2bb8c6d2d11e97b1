#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace corvane::tests {

/// Folders inside one another, so that a path to the innermost has more than 260 characters.
class DeepFolder {
public:
    explicit DeepFolder(const std::filesystem::path& outermost)
        : path_(outermost), outermost_(prefixed(path_)), systemPath_(outermost_) {
        for (const char letter : std::string_view("abcdef")) {
            const std::string name(50, letter);
            path_ /= name;
            systemPath_ /= name;
            std::filesystem::create_directory(systemPath_);
        }
    }
    DeepFolder(const DeepFolder&) = delete;
    DeepFolder& operator=(const DeepFolder&) = delete;
    /// Also removes the file of the innermost folder.
    ~DeepFolder() {
        // One by one: not every standard library lists a folder by the form with a prefix.
        std::error_code ignored;
        std::filesystem::remove(file(), ignored);
        for (auto folder = systemPath_; folder != outermost_; folder = folder.parent_path()) {
            std::filesystem::remove(folder, ignored);
        }
    }

    /// The plain path, which is for the code under test.
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    /// A file in the innermost folder, in a form that standard operations take on every platform.
    [[nodiscard]] std::filesystem::path file() const { return systemPath_ / "file.json"; }

private:
    static std::filesystem::path prefixed(const std::filesystem::path& path) {
#ifdef _WIN32
        return LR"(\\?\)" + std::filesystem::absolute(path).make_preferred().native();
#else
        return path;
#endif
    }

    std::filesystem::path path_;
    std::filesystem::path outermost_;
    std::filesystem::path systemPath_;
};

} // namespace corvane::tests
