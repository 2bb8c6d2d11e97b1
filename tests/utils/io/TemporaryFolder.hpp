#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

namespace corvane::tests {

/// A folder of a test's own, removed with everything in it.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::random_device random;
        do {
            path_ = std::filesystem::temp_directory_path() /
                    ("corvane-test-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(path_));
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    [[nodiscard]] std::filesystem::path write(const std::filesystem::path& name,
                                              std::string_view content) const {
        std::ofstream file(path_ / name, std::ios_base::binary);
        file << content;
        return path_ / name;
    }
    [[nodiscard]] static std::string read(const std::filesystem::path& path) {
        std::ifstream file(path, std::ios_base::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    /// How many files and folders there are in it.
    [[nodiscard]] std::size_t count() const {
        const std::filesystem::directory_iterator entries(path_);
        return static_cast<std::size_t>(
            std::distance(begin(entries), std::filesystem::directory_iterator()));
    }

private:
    std::filesystem::path path_;
};

} // namespace corvane::tests
