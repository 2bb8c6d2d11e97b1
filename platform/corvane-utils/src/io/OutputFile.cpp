#include "OutputFile.hpp"

#include "systemError.hpp"

#include <algorithm>
#include <cstddef>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#endif

namespace corvane::utils::io {

OutputFile::~OutputFile() {
    try {
        close();
    } catch (const std::system_error&) {
        // Whoever wants to know closes it.
    }
}

#ifdef _WIN32

namespace {

// Others may read the file, and remove it, while it is open.
constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_DELETE;

HANDLE opened(HANDLE handle) {
    if (handle == INVALID_HANDLE_VALUE) {
        throwSystemError();
    }
    return handle;
}

} // namespace

OutputFile OutputFile::create(const std::filesystem::path& path) {
    return OutputFile(opened(CreateFileW(path.c_str(), GENERIC_WRITE, kShared, nullptr, CREATE_NEW,
                                         FILE_ATTRIBUTE_NORMAL, nullptr)));
}

OutputFile OutputFile::open(const std::filesystem::path& path) {
    return OutputFile(opened(CreateFileW(path.c_str(), GENERIC_WRITE, kShared | FILE_SHARE_WRITE,
                                         nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)));
}

void OutputFile::write(std::string_view text) const {
    constexpr std::size_t kMost = std::size_t{1} << 24U;
    while (!text.empty()) {
        DWORD written = 0;
        if (WriteFile(handle_, text.data(), static_cast<DWORD>(std::min(text.size(), kMost)),
                      &written, nullptr) == FALSE) {
            throwSystemError();
        }
        text.remove_prefix(written);
    }
}

void OutputFile::flushToDisk() const {
    if (FlushFileBuffers(handle_) == FALSE) {
        throwSystemError();
    }
}

void OutputFile::takeAccessFrom(const std::filesystem::path& /*other*/) const {}

void OutputFile::close() {
    if (handle_ != kNone && CloseHandle(std::exchange(handle_, kNone)) == FALSE) {
        throwSystemError();
    }
}

#else

namespace {

int opened(int descriptor) {
    if (descriptor < 0) {
        throwSystemError();
    }
    return descriptor;
}

/// A socket is not opened but connected to.
int connected(const std::filesystem::path& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.native().size() >= sizeof address.sun_path) {
        throw std::system_error(std::make_error_code(std::errc::filename_too_long));
    }
    std::memcpy(address.sun_path, path.c_str(), path.native().size());
    const int descriptor = opened(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    if (connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        const int reason = errno;
        ::close(descriptor);
        throw std::system_error(reason, std::generic_category());
    }
    return descriptor;
}

} // namespace

OutputFile OutputFile::create(const std::filesystem::path& path) {
    constexpr mode_t kReadAndWrite = 0666; // less what the process masks
    return OutputFile(
        opened(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kReadAndWrite)));
}

OutputFile OutputFile::open(const std::filesystem::path& path) {
    if (std::filesystem::is_socket(path)) {
        return OutputFile(connected(path));
    }
    return OutputFile(opened(::open(path.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC)));
}

void OutputFile::write(std::string_view text) const {
    while (!text.empty()) {
        const ssize_t written = ::write(handle_, text.data(), text.size());
        if (written >= 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            throwSystemError();
        }
    }
}

void OutputFile::flushToDisk() const {
    if (fsync(handle_) != 0) {
        throwSystemError();
    }
}

void OutputFile::takeAccessFrom(const std::filesystem::path& other) const {
    struct stat wanted{};
    struct stat own{};
    if (stat(other.c_str(), &wanted) != 0 || fstat(handle_, &own) != 0) {
        throwSystemError();
    }
    const bool sameOwner = own.st_uid == wanted.st_uid && own.st_gid == wanted.st_gid;
    if (!sameOwner && fchown(handle_, wanted.st_uid, wanted.st_gid) != 0) {
        throwSystemError();
    }
    // Last, because a change of the owner takes some bits away.
    constexpr mode_t kMode = 07777;
    if (fchmod(handle_, wanted.st_mode & kMode) != 0) {
        throwSystemError();
    }
}

void OutputFile::close() {
    if (handle_ != kNone && ::close(std::exchange(handle_, kNone)) != 0) {
        throwSystemError();
    }
}

#endif

} // namespace corvane::utils::io
