#include "systemPath.hpp"

#ifdef _WIN32
#include "longPath.hpp"

#include <windows.h>

#include <string>
#endif

namespace corvane::utils::io {

#ifdef _WIN32

std::filesystem::path systemPath(const std::filesystem::path& path) {
    // Its own idea of a full path, because the prefix takes from the system the task of finding it.
    std::wstring full;
    DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    do {
        full.resize(size);
        size =
            GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    } while (size > full.size());
    if (size == 0) {
        return path;
    }
    full.resize(size);
    if (full.size() < kLongPath) {
        return path;
    }
    return longPath(std::move(full));
}

#else

std::filesystem::path systemPath(const std::filesystem::path& path) {
    return path;
}

#endif

} // namespace corvane::utils::io
