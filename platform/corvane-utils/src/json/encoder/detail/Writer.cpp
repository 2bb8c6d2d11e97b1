#include <corvane/utils/json/encoder/detail/Writer.hpp>

#include <array>
#include <cstring>
#include <stdexcept>

#include "../../../string/Utf8Sequence.hpp"

namespace corvane::utils::json::encoder::detail {

namespace {

/// Which bytes may be copied into a string as they are.
constexpr auto kIsClean = [] {
    std::array<bool, 256> isClean{};
    for (std::size_t byte = 0x20; byte != 0x80; ++byte) {
        isClean[byte] = byte != '"' && byte != '\\';
    }
    return isClean;
}();

/// The highest bit of every byte that must be looked at on its own: one that is not clean, and
/// perhaps one that is, above one that is not.
[[nodiscard]] constexpr std::uint64_t uncleanBytes(std::uint64_t bytes) noexcept {
    constexpr std::uint64_t ones = 0x0101'0101'0101'0101U;
    // With one bit changed the quote becomes the blank, and nothing else that is clean does.
    static_assert(('"' ^ 0x02) == 0x20);
    return (((bytes ^ (0x02 * ones)) - 0x21 * ones) | ((bytes ^ ('\\' * ones)) - ones) | bytes) &
           (0x80 * ones);
}

template <class Word>
[[nodiscard]] Word load(const char* from) noexcept {
    Word word{};
    std::memcpy(&word, from, sizeof word);
    return word;
}

template <class Word>
void store(char* to, Word word) noexcept {
    std::memcpy(to, &word, sizeof word);
}

/// Copies two words, which may overlap; returns whether all their bytes are clean.
template <class Word>
[[nodiscard]] bool copyPairIfClean(const char* from, char* to, std::size_t distance) noexcept {
    const Word first = load<Word>(from);
    const Word second = load<Word>(from + distance);
    store(to, first);
    store(to + distance, second);
    if constexpr (sizeof(Word) == 4) {
        return uncleanBytes(first | std::uint64_t{second} << 32U) == 0;
    } else {
        return (uncleanBytes(first) | uncleanBytes(second)) == 0;
    }
}

/// Copies a text of clean bytes; returns false, with some of it copied, when there are others.
[[nodiscard]] bool copyIfClean(std::string_view text, char* to) noexcept {
    const char* from = text.data();
    std::size_t size = text.size();
    for (; size > 16; size -= 16, from += 16, to += 16) {
        if (!copyPairIfClean<std::uint64_t>(from, to, 8)) {
            return false;
        }
    }
    if (size >= 8) {
        return copyPairIfClean<std::uint64_t>(from, to, size - 8);
    }
    if (size >= 4) {
        return copyPairIfClean<std::uint32_t>(from, to, size - 4);
    }
    for (; size != 0; --size, ++from, ++to) {
        if (!kIsClean[static_cast<unsigned char>(*from)]) {
            return false;
        }
        *to = *from;
    }
    return true;
}

/// Writes a string of clean bytes; returns the end, or null when there are others.
/// @pre There is room for the text and two quotes.
[[nodiscard]] char* quoteIfClean(std::string_view text, char* to) noexcept {
    *to++ = '"';
    if (!copyIfClean(text, to)) {
        return nullptr;
    }
    to += text.size();
    *to++ = '"';
    return to;
}

/// Behind the bytes that may be copied as they are.
[[nodiscard]] const char* skipClean(const char* position, const char* end) noexcept {
    while (end - position >= static_cast<std::ptrdiff_t>(sizeof(std::uint64_t)) &&
           uncleanBytes(load<std::uint64_t>(position)) == 0) {
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

Writer::Writer(io::OutputStream<char>& stream, bool isIndented)
    : stream_(stream), isIndented_(isIndented) {}

Writer::~Writer() = default;

Writer::Ticket Writer::addMember(Container object, std::string_view name) {
    if (expected_ != object.ticket || isIndented_) [[unlikely]] {
        enter(object);
    }
    // Most names are written whole and as they are, with all that is around them.
    if (char* const room = stream_.prepare(name.size() + 5)) {
        if (char* end = quoteIfClean(name, room + putDueComma(room))) {
            end[0] = ':';
            end[1] = ' ';
            end += isIndented_ ? 2 : 1;
            stream_.commit(static_cast<std::size_t>(end - room));
            commaIsDue_ = false;
            return expectValue();
        }
    }
    writeDueComma();
    writeEscaped(name);
    stream_.write(isIndented_ ? std::string_view(": ") : std::string_view(":"));
    commaIsDue_ = false;
    return expectValue();
}

void Writer::writeString(Ticket value, std::string_view text) {
    take(value);
    // Most strings are written whole and as they are.
    if (char* const room = stream_.prepare(text.size() + 3)) {
        if (char* const end = quoteIfClean(text, room + putDueComma(room))) {
            stream_.commit(static_cast<std::size_t>(end - room));
            commaIsDue_ = true;
            return;
        }
    }
    writeDueComma();
    writeEscaped(text);
    commaIsDue_ = true;
}

void Writer::writePlain(Ticket value, std::string_view text) {
    take(value);
    writeDueComma();
    stream_.write(text);
    commaIsDue_ = true;
}

void Writer::close() {
    closeDownTo(0);
    if (isIndented_) {
        stream_.put('\n');
    }
    stream_.flush();
}

void Writer::throwWritten() {
    throw std::logic_error("the JSON value has been written already");
}

void Writer::throwComplete() {
    throw std::logic_error("the JSON object or array is complete already");
}

void Writer::enter(Container container) {
    const auto [depth, ticket] = container;
    if (depth > levels_.depth() || levels_.at(depth).ticket != ticket) {
        throwComplete();
    }
    if (expected_ != ticket) {
        closeDownTo(depth);
    }
    if (isIndented_) [[unlikely]] {
        writeDueComma();
        commaIsDue_ = false;
        writeLineBreak();
    }
}

// What every token goes through ends with the call of what is rare, so that it has no registers to
// save.

Writer::Container Writer::open(Ticket value, char begin, char end) {
    char* const room = stream_.prepare(2);
    if (room == nullptr) [[unlikely]] {
        return openSlowly(value, begin, end);
    }
    take(value);
    const std::size_t comma = putDueComma(room);
    room[comma] = begin;
    stream_.commit(comma + 1);
    return addLevel(value, end);
}

Writer::Container Writer::openSlowly(Ticket value, char begin, char end) {
    writePlain(value, {&begin, 1});
    return addLevel(value, end);
}

Writer::Container Writer::addLevel(Ticket value, char end) {
    commaIsDue_ = false;
    expected_ = value + 1;
    levels_.push({expected_, end});
    return {levels_.depth(), expected_};
}

void Writer::closeDownTo(std::size_t depth) {
    const std::size_t count = levels_.depth() - depth;
    char* const room = stream_.prepare(count);
    if (room == nullptr || isIndented_ || isValue(expected_)) [[unlikely]] {
        return closeSlowly(depth);
    }
    for (std::size_t index = 0; index != count; ++index) {
        room[index] = levels_.at(depth + count - index).end;
    }
    stream_.commit(count);
    commaIsDue_ = true;
    levels_.popTo(depth);
    expected_ = levels_.innermost().ticket;
}

void Writer::closeSlowly(std::size_t depth) {
    if (isValue(expected_)) {
        writePlain(expected_, "null");
    }
    while (levels_.depth() != depth) {
        const char end = levels_.innermost().end;
        levels_.popTo(levels_.depth() - 1);
        if (isIndented_ && commaIsDue_) {
            writeLineBreak();
        }
        stream_.put(end);
        commaIsDue_ = true;
    }
    expected_ = levels_.innermost().ticket;
}

void Writer::writeDueComma() {
    if (commaIsDue_) {
        stream_.put(',');
    }
}

void Writer::writeLineBreak() {
    stream_.put('\n');
    for (std::size_t level = 0; level != levels_.depth(); ++level) {
        stream_.write("  ");
    }
}

void Writer::writeEscaped(std::string_view text) {
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

} // namespace corvane::utils::json::encoder::detail
