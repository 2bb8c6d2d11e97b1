#include "SharedLibrary.hpp"

#include <corvane/workbench/host/text.hpp>

#include <string_view>
#include <utility>

#ifdef _WIN32
#include <windows.h>

#include <system_error>
#else
#include <dlfcn.h>
#endif

namespace corvane::workbench::host {

SharedLibrary::SharedLibrary(SharedLibrary&& other) noexcept
    : handle_(std::exchange(other.handle_, nullptr)), kept_(other.kept_) {}

#ifdef _WIN32

tl::expected<SharedLibrary, std::string>
SharedLibrary::open(const std::filesystem::path& absolutePath) {
    // Without this a damaged library opens a message box.
    DWORD oldMode = 0;
    const BOOL quiet =
        SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &oldMode);
    HMODULE handle = LoadLibraryExW(absolutePath.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    const DWORD error = GetLastError();
    if (quiet != FALSE) {
        SetThreadErrorMode(oldMode, nullptr);
    }
    if (handle == nullptr) {
        return tl::unexpected(std::system_category().message(static_cast<int>(error)));
    }
    return SharedLibrary(static_cast<void*>(handle));
}

SharedLibrary::~SharedLibrary() {
    if (handle_ != nullptr && !kept_) {
        FreeLibrary(static_cast<HMODULE>(handle_));
    }
}

#else

tl::expected<SharedLibrary, std::string>
SharedLibrary::open(const std::filesystem::path& absolutePath) {
    void* handle = dlopen(absolutePath.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) {
        const char* reason = dlerror();
        std::string text = reason != nullptr ? reason : "unknown reason";
        // The loader repeats the path, which the caller names anyway.
        const std::string prefix = pathText(absolutePath) + ": ";
        if (text.starts_with(prefix)) {
            text.erase(0, prefix.size());
        }
        return tl::unexpected(std::move(text));
    }
    return SharedLibrary(handle);
}

SharedLibrary::~SharedLibrary() {
    if (handle_ != nullptr && !kept_) {
        dlclose(handle_);
    }
}

#endif

} // namespace corvane::workbench::host
