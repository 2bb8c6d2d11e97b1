#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace corvane::utils::io {

/// A sink of characters with a buffer. A stream is written by one thread at a time. Writing errors
/// are exceptions (std::system_error or std::runtime_error) whose text names the sink.
///
/// A derived stream owns the buffer and hands it over with setBuffer(); the buffer may be the sink
/// itself, such as a string that grows.
template <class Char>
class OutputStream {
public:
    OutputStream(const OutputStream&) = delete;
    OutputStream& operator=(const OutputStream&) = delete;
    /// Does not close the stream: what was not flushed is lost.
    virtual ~OutputStream() = default;

    /// What the stream writes to, for messages (UTF-8).
    [[nodiscard]] virtual std::string description() const = 0;

    /// @pre The stream is not closed; likewise for write().
    void put(Char character) {
        if (position_ == end_) {
            flushBuffer();
        }
        *position_++ = character;
    }
    /// @pre The stream is not closed.
    void write(std::basic_string_view<Char> text) {
        if (text.size() <= static_cast<std::size_t>(end_ - position_)) {
            position_ =
                std::char_traits<Char>::copy(position_, text.data(), text.size()) + text.size();
        } else {
            writeLarge(text);
        }
    }

    /// Room for that many characters to be written in place and then given to commit(), or null
    /// when the buffer has not enough left; write() always works.
    [[nodiscard]] Char* prepare(std::size_t count) noexcept {
        return count <= static_cast<std::size_t>(end_ - position_) ? position_ : nullptr;
    }
    /// Counts characters as written. @pre prepare() gave room for at least as many.
    void commit(std::size_t count) noexcept { position_ += count; }

    /// Hands everything written so far to the sink.
    void flush() {
        if (!closed_) {
            flushBuffer();
        }
    }

    /// Flushes and completes the sink. A second call does nothing. After an exception the stream
    /// counts as closed and what was written is lost.
    void close() {
        if (!closed_) {
            closed_ = true;
            flushBuffer();
            closeSink();
        }
    }

protected:
    OutputStream() = default;

    /// Gives the stream its buffer; what stands before `position` counts as written but not yet
    /// flushed.
    void setBuffer(Char* begin, Char* position, Char* end) noexcept {
        begin_ = begin;
        position_ = position;
        end_ = end;
    }
    /// The first character of the buffer, as it was given.
    [[nodiscard]] Char* bufferBegin() const noexcept { return begin_; }
    /// Behind the last character that was written.
    [[nodiscard]] Char* bufferPosition() const noexcept { return position_; }
    /// The end of the buffer, as it was given.
    [[nodiscard]] Char* bufferEnd() const noexcept { return end_; }

private:
    /// Takes what stands between bufferBegin() and bufferPosition(), then sets a buffer that has
    /// room for at least one character. Also called when the buffer is not full, by flush() and
    /// close(), and before the first character when no buffer has been set.
    virtual void flushBuffer() = 0;

    /// Writes a text that is longer than the room in the buffer. The default goes through the
    /// buffer piece by piece.
    virtual void writeLarge(std::basic_string_view<Char> text) {
        while (!text.empty()) {
            if (position_ == end_) {
                flushBuffer();
            }
            const std::size_t piece =
                std::min(text.size(), static_cast<std::size_t>(end_ - position_));
            position_ = std::copy_n(text.begin(), piece, position_);
            text.remove_prefix(piece);
        }
    }

    /// Completes the sink when the buffer has been flushed for the last time. The default does
    /// nothing.
    virtual void closeSink() {}

    Char* begin_ = nullptr;
    Char* position_ = nullptr;
    Char* end_ = nullptr;
    bool closed_ = false;
};

} // namespace corvane::utils::io
