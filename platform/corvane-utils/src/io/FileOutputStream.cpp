#include <corvane/utils/io/FileOutputStream.hpp>

#include "pathText.hpp"
#include "systemPath.hpp"

#include <cerrno>
#include <ios>
#include <random>
#include <utility>

namespace corvane::utils::io {

namespace {

constexpr std::size_t kBlockSize = 64 * 1024;

/// The file that is to be replaced: where the path leads when it is a symbolic link.
[[nodiscard]] std::filesystem::path targetOf(const std::filesystem::path& path) {
    std::error_code error;
    if (!std::filesystem::is_symlink(path, error)) {
        return path;
    }
    std::filesystem::path target = std::filesystem::weakly_canonical(path, error);
    return error ? path : target;
}

/// A name beside the target that no other file has.
[[nodiscard]] std::filesystem::path temporaryBeside(const std::filesystem::path& target) {
    std::random_device random;
    for (;;) {
        std::filesystem::path name = target;
        name += '.' + std::to_string(random()) + ".tmp";
        std::error_code error;
        if (!std::filesystem::exists(name, error)) {
            return name;
        }
    }
}

} // namespace

FileOutputStream::FileOutputStream(std::filesystem::path path)
    : path_(std::move(path)), target_(targetOf(systemPath(path_))) {
    std::error_code ignored;
    if (std::filesystem::is_directory(target_, ignored)) {
        throwPathError("write", path_, std::make_error_code(std::errc::is_a_directory));
    }
    block_.resize(kBlockSize);
    setBuffer(block_.data(), block_.data(), block_.data() + block_.size());
    temporary_ = temporaryBeside(target_);
    // The stream has its own, larger buffer.
    file_.pubsetbuf(nullptr, 0);
    errno = 0;
    if (file_.open(temporary_, std::ios_base::out | std::ios_base::binary | std::ios_base::trunc) ==
        nullptr) {
        throwPathError("write", path_, lastError());
    }
}

FileOutputStream::~FileOutputStream() {
    discard();
}

std::string FileOutputStream::description() const {
    return pathText(path_);
}

void FileOutputStream::flushBuffer() {
    const std::string_view block(bufferBegin(),
                                 static_cast<std::size_t>(bufferPosition() - bufferBegin()));
    setBuffer(block_.data(), block_.data(), block_.data() + block_.size());
    writeBlock(block);
}

void FileOutputStream::writeLarge(std::string_view text) {
    flushBuffer();
    if (text.size() >= block_.size()) {
        writeBlock(text);
    } else {
        write(text);
    }
}

void FileOutputStream::closeSink() {
    errno = 0;
    if (file_.close() == nullptr) {
        const std::error_code reason = lastError();
        discard();
        throwPathError("write", path_, reason);
    }
    std::error_code error;
    const auto permissions = std::filesystem::status(target_, error).permissions();
    if (!error && permissions != std::filesystem::perms::unknown) {
        std::filesystem::permissions(temporary_, permissions, error);
    }
    std::filesystem::rename(temporary_, target_, error);
    if (error) {
        discard();
        throwPathError("write", path_, error);
    }
    temporary_.clear();
}

void FileOutputStream::writeBlock(std::string_view block) {
    errno = 0;
    const auto size = static_cast<std::streamsize>(block.size());
    if (file_.sputn(block.data(), size) != size) {
        const std::error_code reason = lastError();
        discard();
        throwPathError("write", path_, reason);
    }
}

void FileOutputStream::discard() noexcept {
    if (!temporary_.empty()) {
        file_.close();
        std::error_code ignored;
        std::filesystem::remove(temporary_, ignored);
        temporary_.clear();
    }
}

} // namespace corvane::utils::io
