#pragma once

// A shared library of the operating system, loaded as long as the object lives.

#include <tl/expected.hpp>

#include <filesystem>
#include <string>

namespace corvane::workbench::host {

class SharedLibrary {
public:
    /// Loads the library; fails with the operating system's reason (UTF-8).
    [[nodiscard]] static tl::expected<SharedLibrary, std::string>
    open(const std::filesystem::path& absolutePath);

    SharedLibrary(SharedLibrary&& other) noexcept;
    SharedLibrary& operator=(SharedLibrary&&) = delete;
    ~SharedLibrary();

    /// The same for every loading of the same library.
    [[nodiscard]] const void* handle() const noexcept { return _handle; }
    /// Leaves the library loaded until the process ends.
    void keepLoaded() noexcept { _kept = true; }

private:
    explicit SharedLibrary(void* handle) noexcept : _handle(handle) {}

    void* _handle;
    bool _kept = false;
};

} // namespace corvane::workbench::host
