#include <corvane/utils/io/FileOutputStream.hpp>

#include "OutputFile.hpp"
#include "OutputTarget.hpp"
#include "TemporaryFile.hpp"
#include "pathError.hpp"
#include "systemPath.hpp"

#include <optional>
#include <random>
#include <system_error>
#include <utility>

namespace corvane::utils::io {

namespace {

constexpr std::size_t kBlockSize = 64 * 1024;

} // namespace

/// The open file, and what becomes of it in the end. The steps throw std::system_error, in which
/// only the reason counts.
class FileOutputStream::Sink {
public:
    explicit Sink(const std::filesystem::path& path) : target_(findOutputTarget(path)) {}

    void requireWritable() const {
        if (target_.isReadOnly) {
            throw std::system_error(std::make_error_code(std::errc::permission_denied));
        }
    }
    void open() {
        if (target_.kind == OutputTarget::Kind::Stream) {
            file_.emplace(OutputFile::open(target_.path));
        } else {
            makeTemporary();
        }
    }
    void keepAccess() const {
        if (target_.kind == OutputTarget::Kind::File) {
            file_->takeAccessFrom(target_.path);
        }
    }

    void write(std::string_view text) const { file_->write(text); }

    void complete() {
        if (!temporary_) {
            file_->close();
            return;
        }
        file_->flushToDisk();
        file_->close();
        replaceTarget(target_, temporary_->path());
        temporary_->release();
    }

private:
    /// Beside the target, under a name that no other file has.
    void makeTemporary() {
        std::random_device random;
        while (!file_) {
            std::filesystem::path name = target_.path;
            name += '.' + std::to_string(random()) + ".tmp";
            temporary_.emplace(std::move(name));
            try {
                file_.emplace(OutputFile::create(temporary_->path()));
            } catch (const std::system_error& error) {
                // Nothing of ours.
                temporary_->release();
                if (error.code() != std::errc::file_exists) {
                    throw;
                }
            }
        }
    }

    OutputTarget target_;
    std::optional<TemporaryFile> temporary_;
    std::optional<OutputFile> file_;
};

/// Does a step; when it fails, everything is undone and the path is named, with the clause behind
/// it.
template <class Step>
void FileOutputStream::attempt(Step&& step, const char* clause) {
    try {
        step();
    } catch (const std::system_error& error) {
        sink_.reset();
        throw std::system_error(error.code(), "cannot write " + pathText(path_) + clause);
    }
}

FileOutputStream::FileOutputStream(std::filesystem::path path) : path_(std::move(path)) {
    block_.resize(kBlockSize);
    setBuffer(block_.data(), block_.data(), block_.data() + block_.size());
    attempt([&] { sink_ = std::make_unique<Sink>(systemPath(path_)); });
    attempt([&] { sink_->requireWritable(); }, ", which is read-only");
    attempt([&] { sink_->open(); });
    attempt([&] { sink_->keepAccess(); }, ", whose owner and mode cannot be kept");
}

FileOutputStream::~FileOutputStream() = default;

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
    requireSink();
    attempt([&] { sink_->complete(); });
    sink_.reset();
}

void FileOutputStream::writeBlock(std::string_view block) {
    requireSink();
    attempt([&] { sink_->write(block); });
}

void FileOutputStream::requireSink() const {
    if (!sink_) {
        throwPathError("write", path_, std::make_error_code(std::errc::io_error));
    }
}

} // namespace corvane::utils::io
