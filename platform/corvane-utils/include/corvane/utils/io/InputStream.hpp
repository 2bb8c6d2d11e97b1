#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace corvane::utils::io {

/// A source of characters with a buffer. A stream is read by one thread at a time. Reading errors
/// are exceptions (std::system_error or std::runtime_error) whose text names the source.
template <class Char>
class InputStream {
public:
    InputStream(const InputStream&) = delete;
    InputStream& operator=(const InputStream&) = delete;
    virtual ~InputStream() = default;

    /// What the stream reads from, for messages (UTF-8).
    [[nodiscard]] virtual std::string description() const = 0;

    /// The next character, nothing at the end.
    [[nodiscard]] std::optional<Char> get() {
        if (position_ == end_ && !refill()) {
            return std::nullopt;
        }
        return *position_++;
    }

    /// Reads up to count characters and returns how many there were; fewer only at the end.
    std::size_t read(Char* to, std::size_t count) {
        std::size_t done = 0;
        while (done != count && (position_ != end_ || refill())) {
            const std::size_t piece =
                std::min(count - done, static_cast<std::size_t>(end_ - position_));
            std::copy_n(position_, piece, to + done);
            position_ += piece;
            done += piece;
        }
        return done;
    }

    /// Everything that is left, in one piece; the stream is then at its end. The result refers to
    /// storage or to the stream's own buffer and is valid while both live unchanged.
    [[nodiscard]] std::basic_string_view<Char> readRest(std::basic_string<Char>& storage) {
        return readRestInto(storage);
    }

protected:
    InputStream() = default;

    /// What the buffer still holds.
    [[nodiscard]] std::basic_string_view<Char> buffered() const noexcept {
        return {position_, static_cast<std::size_t>(end_ - position_)};
    }
    /// Gives the stream what it delivers next. The characters are borrowed until they are used up.
    void setBuffer(std::basic_string_view<Char> characters) noexcept {
        position_ = characters.data();
        end_ = characters.data() + characters.size();
    }

private:
    /// Called when the buffer is used up: sets a buffer of at least one character and returns
    /// true, or returns false at the end, also when asked again.
    virtual bool refill() = 0;

    /// Does what readRest() says. The default collects buffer after buffer.
    virtual std::basic_string_view<Char> readRestInto(std::basic_string<Char>& storage) {
        storage.clear();
        do {
            storage.append(buffered());
            setBuffer({});
        } while (refill());
        return storage;
    }

    const Char* position_ = nullptr;
    const Char* end_ = nullptr;
};

} // namespace corvane::utils::io
