#include "LineBuffer.hpp"

#include <algorithm>

namespace corvane::skillbench {

LineBuffer::LineBuffer(Write write) : write_(write) {
    setp(buffer_.data(), buffer_.data() + buffer_.size());
}

void LineBuffer::writeLines() noexcept {
    const std::string_view text(pbase(), static_cast<std::size_t>(pptr() - pbase()));
    writeFirst(text.rfind('\n') + 1);
}

LineBuffer::int_type LineBuffer::overflow(int_type character) {
    const std::string_view text(pbase(), static_cast<std::size_t>(pptr() - pbase()));
    const std::size_t lines = text.rfind('\n') + 1;
    if (!writeFirst(lines != 0 ? lines : text.size())) {
        return traits_type::eof();
    }
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
        *pptr() = traits_type::to_char_type(character);
        pbump(1);
    }
    return traits_type::not_eof(character);
}

int LineBuffer::sync() {
    return writeFirst(static_cast<std::size_t>(pptr() - pbase())) ? 0 : -1;
}

bool LineBuffer::writeFirst(std::size_t count) noexcept {
    const bool done = write_({pbase(), count});
    char* const end = std::copy(pbase() + count, pptr(), pbase());
    setp(buffer_.data(), buffer_.data() + buffer_.size());
    pbump(static_cast<int>(end - buffer_.data()));
    return done;
}

} // namespace corvane::skillbench
