#include <corvane/utils/io/FileInputStream.hpp>

#include "pathError.hpp"
#include "systemPath.hpp"

#include <algorithm>
#include <cerrno>
#include <ios>
#include <utility>

namespace corvane::utils::io {

namespace {

constexpr std::size_t kBlockSize = 64 * 1024;

} // namespace

FileInputStream::FileInputStream(std::filesystem::path path) : path_(std::move(path)) {
    const std::filesystem::path place = systemPath(path_);
    std::error_code ignored;
    if (std::filesystem::is_directory(place, ignored)) {
        throwPathError("open", path_, std::make_error_code(std::errc::is_a_directory));
    }
    // The stream has its own, larger buffer.
    file_.pubsetbuf(nullptr, 0);
    errno = 0;
    if (file_.open(place, std::ios_base::in | std::ios_base::binary) == nullptr) {
        throwPathError("open", path_, lastError());
    }
}

FileInputStream::~FileInputStream() = default;

std::string FileInputStream::description() const {
    return pathText(path_);
}

bool FileInputStream::refill() {
    block_.resize(kBlockSize);
    const std::size_t size = readBlock(block_.data(), block_.size());
    setBuffer({block_.data(), size});
    return size != 0;
}

std::string_view FileInputStream::readRestInto(std::string& storage) {
    storage.assign(buffered());
    setBuffer({});
    std::error_code unknownSize;
    const std::uintmax_t fileSize = std::filesystem::file_size(systemPath(path_), unknownSize);
    std::size_t block = kBlockSize;
    if (!unknownSize && fileSize <= storage.max_size() / 2) {
        // One byte more shows in the same step that the end has been reached.
        block = std::max(block, static_cast<std::size_t>(fileSize) + 1);
    }
    for (;;) {
        const std::size_t size = storage.size();
        storage.resize(size + block);
        const std::size_t count = readBlock(storage.data() + size, block);
        storage.resize(size + count);
        if (count < block) {
            return storage;
        }
    }
}

std::size_t FileInputStream::readBlock(char* to, std::size_t count) {
    errno = 0;
    try {
        return static_cast<std::size_t>(file_.sgetn(to, static_cast<std::streamsize>(count)));
    } catch (const std::ios_base::failure&) {
        throwPathError("read", path_, lastError());
    }
}

} // namespace corvane::utils::io
