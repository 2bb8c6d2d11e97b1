#pragma once

#include <tl/expected.hpp>

#include <filesystem>
#include <string>

namespace corvane::workbench::host {

/// A shared library of the operating system, loaded as long as the object lives.
class SharedLibrary {
public:
    /// Loads the library; fails with the operating system's reason (UTF-8).
    [[nodiscard]] static tl::expected<SharedLibrary, std::string>
    open(const std::filesystem::path& absolutePath);

    SharedLibrary(SharedLibrary&& other) noexcept;
    SharedLibrary& operator=(SharedLibrary&&) = delete;
    ~SharedLibrary();

    /// The same for every loading of the same library.
    [[nodiscard]] const void* handle() const noexcept { return handle_; }
    /// Leaves the library loaded until the process ends.
    void keepLoaded() noexcept { kept_ = true; }

private:
    explicit SharedLibrary(void* handle) noexcept : handle_(handle) {}

    void* handle_;
    bool kept_ = false;
};

} // namespace corvane::workbench::host
