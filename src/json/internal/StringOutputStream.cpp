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
    m_text.resize(written());
    std::string text = std::move(m_text);
    m_text.clear();
    useStringAsBuffer(0);
    return text;
}

void StringOutputStream::flushBuffer() {
    if (bufferPosition() != bufferEnd()) {
        return;
    }
    const std::size_t length = m_text.size();
    if (length == m_text.max_size()) {
        throwTooLong();
    }
    const std::size_t doubled =
        length > m_text.max_size() / 2 ? m_text.max_size() : std::max<std::size_t>(length * 2, 1);
    m_text.resize(std::max(doubled, m_text.capacity()));
    useStringAsBuffer(length);
}

void StringOutputStream::writeLarge(std::string_view text) {
    const std::size_t length = written();
    if (text.size() > m_text.max_size() - length) {
        throwTooLong();
    }
    m_text.resize(length);
    m_text.append(text);
    useStringAsBuffer(m_text.size());
}

std::size_t StringOutputStream::written() const noexcept {
    return static_cast<std::size_t>(bufferPosition() - bufferBegin());
}

void StringOutputStream::useStringAsBuffer(std::size_t written) noexcept {
    char* const begin = m_text.data();
    setBuffer(begin, begin + written, begin + m_text.size());
}

} // namespace corvane::workbench::json::internal
