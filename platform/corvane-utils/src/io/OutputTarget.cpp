#include "OutputTarget.hpp"

#include "systemError.hpp"

#ifdef _WIN32
#include <windows.h>

#include <memory>
#include <string>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#endif

namespace corvane::utils::io {

namespace {

[[noreturn]] void refuse(std::errc reason) {
    throw std::system_error(std::make_error_code(reason));
}

} // namespace

#ifdef _WIN32

namespace {

struct CloseHandleOf {
    void operator()(void* handle) const noexcept { CloseHandle(handle); }
};

/// Where the file really is: a name without symbolic links.
std::wstring finalPath(HANDLE file) {
    std::wstring result;
    DWORD size = GetFinalPathNameByHandleW(file, nullptr, 0, FILE_NAME_NORMALIZED);
    do {
        result.resize(size);
        size = GetFinalPathNameByHandleW(file, result.data(), static_cast<DWORD>(result.size()),
                                         FILE_NAME_NORMALIZED);
    } while (size > result.size());
    if (size == 0) {
        throwSystemError();
    }
    result.resize(size);
    return result;
}

} // namespace

OutputTarget findOutputTarget(const std::filesystem::path& given) {
    // Not every system replaces a file by its relative path.
    const bool isFull = given.is_absolute() || given.native().starts_with(LR"(\\)");
    const std::filesystem::path path = isFull ? given : std::filesystem::absolute(given);
    constexpr DWORD kSharedByAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    // To look at a pipe would already count as a client.
    if (path.native().starts_with(LR"(\\.\)")) {
        return {path, OutputTarget::Kind::Stream};
    }
    HANDLE opened = CreateFileW(path.c_str(), 0, kSharedByAll, nullptr, OPEN_EXISTING,
                                FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (opened == INVALID_HANDLE_VALUE) {
        const DWORD reason = GetLastError();
        const bool isLink = GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
        if (reason == ERROR_FILE_NOT_FOUND && !isLink) {
            return {path, OutputTarget::Kind::New};
        }
        SetLastError(reason);
        throwSystemError();
    }
    const std::unique_ptr<void, CloseHandleOf> file(opened);
    if (GetFileType(opened) != FILE_TYPE_DISK) {
        return {path, OutputTarget::Kind::Stream};
    }
    BY_HANDLE_FILE_INFORMATION information{};
    if (GetFileInformationByHandle(opened, &information) == FALSE) {
        throwSystemError();
    }
    if ((information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        refuse(std::errc::is_a_directory);
    }
    const bool isLink = (GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    return {isLink ? std::filesystem::path(finalPath(opened)) : path, OutputTarget::Kind::File,
            (information.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0};
}

void replaceTarget(const OutputTarget& target, const std::filesystem::path& file) {
    // Replacing keeps the attributes and the rights of the old file.
    const BOOL done = target.kind == OutputTarget::Kind::File
                          ? ReplaceFileW(target.path.c_str(), file.c_str(), nullptr,
                                         REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr)
                          : MoveFileExW(file.c_str(), target.path.c_str(),
                                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    if (done == FALSE) {
        throwSystemError();
    }
}

#else

namespace {

/// Follows links whose last one leads to nothing.
std::filesystem::path followLinks(std::filesystem::path path) {
    constexpr int kMostLinks = 40; // as the system
    for (int count = 0; std::filesystem::is_symlink(path); ++count) {
        if (count == kMostLinks) {
            refuse(std::errc::too_many_symbolic_link_levels);
        }
        path = path.parent_path() / std::filesystem::read_symlink(path);
    }
    return path;
}

/// Only then a new name is there for good.
void flushFolderOf(const std::filesystem::path& path) {
    const std::filesystem::path folder = path.has_parent_path() ? path.parent_path() : ".";
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) {
        // A folder may be closed to readers and open to writers.
        return;
    }
    const int reason = fsync(descriptor) == 0 ? 0 : errno;
    close(descriptor);
    // Not every file system can do it for folders.
    if (reason != 0 && reason != EINVAL) {
        throw std::system_error(reason, std::generic_category());
    }
}

} // namespace

OutputTarget findOutputTarget(const std::filesystem::path& path) {
    constexpr mode_t kAnyoneWrites = 0222;
    struct stat status{};
    if (stat(path.c_str(), &status) != 0) {
        if (errno != ENOENT) {
            throwSystemError();
        }
        return {followLinks(path), OutputTarget::Kind::New};
    }
    if (S_ISDIR(status.st_mode)) {
        refuse(std::errc::is_a_directory);
    }
    if (!S_ISREG(status.st_mode)) {
        return {path, OutputTarget::Kind::Stream};
    }
    // Whoever administers the system could write every file.
    const bool isReadOnly = (status.st_mode & kAnyoneWrites) == 0 ||
                            faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0;
    return {followLinks(path), OutputTarget::Kind::File, isReadOnly};
}

void replaceTarget(const OutputTarget& target, const std::filesystem::path& file) {
    if (std::rename(file.c_str(), target.path.c_str()) != 0) {
        throwSystemError();
    }
    flushFolderOf(target.path);
}

#endif

} // namespace corvane::utils::io
