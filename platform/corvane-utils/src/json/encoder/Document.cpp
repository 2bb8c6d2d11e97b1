#include <corvane/utils/json/encoder/Document.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <stdexcept>

#include "../../string/Utf8Sequence.hpp"

namespace corvane::utils::json::encoder {

namespace {

constexpr std::uint64_t kNoTicket = 0;
constexpr std::uint64_t kRootTicket = 1;

/// Which bytes may be copied into a string as they are.
constexpr auto kIsClean = [] {
    std::array<bool, 256> isClean{};
    for (std::size_t byte = 0x20; byte != 0x80; ++byte) {
        isClean[byte] = byte != '"' && byte != '\\';
    }
    return isClean;
}();

/// Whether any of eight bytes must be looked at on its own: one that is not clean, and perhaps
/// one that is, above one that is not.
[[nodiscard]] constexpr bool holdsUnclean(std::uint64_t bytes) noexcept {
    constexpr std::uint64_t ones = 0x0101010101010101U;
    const auto holdsZero = [](std::uint64_t word) { return (word - ones) & ~word; };
    return (((bytes - 0x20 * ones) | bytes | holdsZero(bytes ^ ('"' * ones)) |
             holdsZero(bytes ^ ('\\' * ones))) &
            (0x80 * ones)) != 0;
}

template <class Word>
[[nodiscard]] Word load(const char* from) noexcept {
    Word word{};
    std::memcpy(&word, from, sizeof word);
    return word;
}

/// Copies a text that is usually a number, without the call that copying any length takes.
void copyShort(std::string_view text, char* to) noexcept {
    using Word = std::uint64_t;
    const std::size_t size = text.size();
    if (size < sizeof(Word) || size > 3 * sizeof(Word)) {
        std::copy(text.begin(), text.end(), to);
        return;
    }
    // The last word may overlap those before.
    const std::size_t last = size - sizeof(Word);
    const auto copyWord = [&](std::size_t index) {
        const Word word = load<Word>(text.data() + index);
        std::memcpy(to + index, &word, sizeof word);
    };
    copyWord(0);
    copyWord(std::min(last, sizeof(Word)));
    copyWord(last);
}

/// Copies a text of clean bytes; returns false, with some of it copied, when there are others.
[[nodiscard]] bool copyIfClean(std::string_view text, char* to) noexcept {
    const char* position = text.data();
    const char* const end = position + text.size();
    const auto copyWord = [&]<class Word>(Word word) {
        std::memcpy(to + (position - text.data()), &word, sizeof word);
        position += sizeof word;
        return !holdsUnclean(word);
    };
    if (text.size() >= sizeof(std::uint64_t)) {
        while (end - position > static_cast<std::ptrdiff_t>(sizeof(std::uint64_t))) {
            if (!copyWord(load<std::uint64_t>(position))) {
                return false;
            }
        }
        // The last word may overlap the one before.
        position = end - sizeof(std::uint64_t);
        return copyWord(load<std::uint64_t>(position));
    }
    for (; position != end; ++position) {
        if (!kIsClean[static_cast<unsigned char>(*position)]) {
            return false;
        }
        to[position - text.data()] = *position;
    }
    return true;
}

/// Behind the bytes that may be copied as they are.
[[nodiscard]] const char* skipClean(const char* position, const char* end) noexcept {
    while (end - position >= static_cast<std::ptrdiff_t>(sizeof(std::uint64_t)) &&
           !holdsUnclean(load<std::uint64_t>(position))) {
        position += sizeof(std::uint64_t);
    }
    while (position != end && kIsClean[static_cast<unsigned char>(*position)]) {
        ++position;
    }
    return position;
}

/// Behind the well-formed sequences of two or three bytes, as far as they can be told without a
/// second look.
[[nodiscard]] const char* skipPlainSequences(const char* position, const char* end) noexcept {
    const auto byteAt = [&](std::size_t index) {
        return static_cast<unsigned char>(position[index]);
    };
    const auto continues = [&](std::size_t index) { return (byteAt(index) & 0xC0U) == 0x80; };
    while (end - position >= 3) {
        const unsigned char first = byteAt(0);
        if (first > 0xE0 && first < 0xF0 && first != 0xED && continues(1) && continues(2)) {
            position += 3;
        } else if (first >= 0xC2 && first < 0xE0 && continues(1)) {
            position += 2;
        } else {
            break;
        }
    }
    return position;
}

void writeEscape(io::OutputStream<char>& stream, char character) {
    static constexpr std::string_view kDigits = "0123456789abcdef";
    switch (character) {
    case '"':
        return stream.write("\\\"");
    case '\\':
        return stream.write("\\\\");
    case '\b':
        return stream.write("\\b");
    case '\f':
        return stream.write("\\f");
    case '\n':
        return stream.write("\\n");
    case '\r':
        return stream.write("\\r");
    case '\t':
        return stream.write("\\t");
    default: {
        const auto code = static_cast<unsigned char>(character);
        stream.write("\\u00");
        stream.put(kDigits[code >> 4U]);
        stream.put(kDigits[code & 0x0FU]);
    }
    }
}

} // namespace

Document::Document(io::OutputStream<char>& stream, Format format)
    : stream_(stream), format_(format), pending_(kRootTicket), lastTicket_(kRootTicket) {}

Document::~Document() = default;

Value Document::root() noexcept {
    return Value(*this, kRootTicket);
}

void Document::close() {
    if (isClosed_) {
        return;
    }
    isClosed_ = true;
    closeDownTo(0);
    if (format_ == Format::Indented) {
        stream_.put('\n');
    }
    stream_.flush();
}

Value Document::addMember(std::size_t depth, std::uint64_t ticket, std::string_view name) {
    Level& level = enter(depth, ticket);
    if (format_ == Format::Compact) {
        // Most names are written whole and as they are, with all that is around them.
        if (char* const room = stream_.prepare(name.size() + 4)) {
            char* to = room;
            if (!level.isEmpty) {
                *to++ = ',';
            }
            *to++ = '"';
            if (copyIfClean(name, to)) {
                to += name.size();
                *to++ = '"';
                *to++ = ':';
                stream_.commit(static_cast<std::size_t>(to - room));
                level.isEmpty = false;
                return expectValue();
            }
        }
    }
    separate(level);
    writeQuoted(name);
    stream_.write(format_ == Format::Indented ? std::string_view(": ") : std::string_view(":"));
    return expectValue();
}

Value Document::addElement(std::size_t depth, std::uint64_t ticket) {
    separate(enter(depth, ticket));
    return expectValue();
}

Value Document::expectValue() noexcept {
    pending_ = ++lastTicket_;
    return Value(*this, pending_);
}

void Document::writePlain(std::string_view text) {
    if (char* const room = stream_.prepare(text.size())) {
        copyShort(text, room);
        stream_.commit(text.size());
    } else {
        stream_.write(text);
    }
}

void Document::takeValue(std::uint64_t ticket) {
    if (pending_ != ticket) {
        throw std::logic_error("the JSON value has been written already");
    }
    pending_ = kNoTicket;
}

void Document::open(std::uint64_t ticket, bool isObject) {
    stream_.put(isObject ? '{' : '[');
    levels_.push_back({ticket, isObject, true});
}

Document::Level& Document::enter(std::size_t depth, std::uint64_t ticket) {
    if (levels_.size() < depth || levels_[depth - 1].ticket != ticket) {
        throw std::logic_error("the JSON object or array is complete already");
    }
    if (levels_.size() > depth || pending_ != kNoTicket) {
        closeDownTo(depth);
    }
    return levels_[depth - 1];
}

void Document::separate(Level& level) {
    if (!level.isEmpty) {
        stream_.put(',');
    }
    level.isEmpty = false;
    if (format_ == Format::Indented) {
        writeLineBreak();
    }
}

void Document::closeDownTo(std::size_t depth) {
    if (pending_ != kNoTicket) {
        pending_ = kNoTicket;
        stream_.write("null");
    }
    while (levels_.size() > depth) {
        const Level level = levels_.back();
        levels_.pop_back();
        if (!level.isEmpty && format_ == Format::Indented) {
            writeLineBreak();
        }
        stream_.put(level.isObject ? '}' : ']');
    }
}

void Document::writeLineBreak() {
    stream_.put('\n');
    for (std::size_t level = 0; level != levels_.size(); ++level) {
        stream_.write("  ");
    }
}

void Document::writeQuoted(std::string_view text) {
    // Most strings are copied as they are.
    if (char* const room = stream_.prepare(text.size() + 2);
        room != nullptr && copyIfClean(text, room + 1)) {
        room[0] = '"';
        room[text.size() + 1] = '"';
        stream_.commit(text.size() + 2);
        return;
    }
    stream_.put('"');
    const char* position = text.data();
    const char* const end = position + text.size();
    const char* written = position;
    const auto writeRun = [&] {
        stream_.write({written, static_cast<std::size_t>(position - written)});
    };
    while ((position = skipClean(position, end)) != end) {
        if (static_cast<unsigned char>(*position) < 0x80) {
            writeRun();
            writeEscape(stream_, *position);
            written = ++position;
            continue;
        }
        position = skipPlainSequences(position, end);
        if (position == end || static_cast<unsigned char>(*position) < 0x80) {
            continue;
        }
        const auto sequence = string::readUtf8Sequence(position, end);
        if (!sequence.isWellFormed) {
            writeRun();
            stream_.write("\xEF\xBF\xBD"); // U+FFFD
            written = position + sequence.length;
        }
        position += sequence.length;
    }
    writeRun();
    stream_.put('"');
}

} // namespace corvane::utils::json::encoder
