#include <corvane/workbench/json/internal/StringOutputStream.hpp>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace corvane::workbench::json::internal {

namespace {

[[noreturn]] void throwTooLong() {
    throw std::length_error("string data size exceeds representable size");
}

} // namespace

StringOutputStream::StringOutputStream() = default;

StringOutputStream::~StringOutputStream() = default;

std::string StringOutputStream::description() const {
    return "in-memory text string";
}

std::string StringOutputStream::take() {
    text_.resize(written());
    std::string text = std::move(text_);
    text_.clear();
    useStringAsBuffer(0);
    return text;
}

void StringOutputStream::flushBuffer() {
    if (bufferPosition() != bufferEnd()) {
        return;
    }
    const std::size_t length = text_.size();
    if (length == text_.max_size()) {
        throwTooLong();
    }
    const std::size_t doubled =
        length > text_.max_size() / 2 ? text_.max_size() : std::max<std::size_t>(length * 2, 1);
    text_.resize(std::max(doubled, text_.capacity()));
    useStringAsBuffer(length);
}

void StringOutputStream::writeLarge(std::string_view text) {
    const std::size_t length = written();
    if (text.size() > text_.max_size() - length) {
        throwTooLong();
    }
    text_.resize(length);
    text_.append(text);
    useStringAsBuffer(text_.size());
}

std::size_t StringOutputStream::written() const noexcept {
    return static_cast<std::size_t>(bufferPosition() - bufferBegin());
}

void StringOutputStream::useStringAsBuffer(std::size_t written) noexcept {
    char* const begin = text_.data();
    setBuffer(begin, begin + written, begin + text_.size());
}

} // namespace corvane::workbench::json::internal
