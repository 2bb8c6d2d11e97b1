#include <corvane/utils/json/encoder/detail/Writer.hpp>

#include "quote.hpp"

#include <stdexcept>

namespace corvane::utils::json::encoder::detail {

Writer::Writer(io::OutputStream<char>& stream, bool isIndented)
    : stream_(stream), isIndented_(isIndented) {}

Writer::~Writer() = default;

// What every token goes through calls what is rare only at its end: then it saves no registers.

Writer::Ticket Writer::addMember(Container object, std::string_view name) {
    if (expected_ != object.ticket || isIndented_) [[unlikely]] {
        enter(object);
    }
    // Most names are written whole and as they are, with all that is around them.
    if (char* const room = stream_.prepare(name.size() + 5)) {
        if (char* end = quoteIfPlain(name, room + putDueComma(room))) {
            end[0] = ':';
            end[1] = ' ';
            end += isIndented_ ? 2 : 1;
            stream_.commit(static_cast<std::size_t>(end - room));
            commaIsDue_ = false;
            return expectValue();
        }
    }
    return addMemberSlowly(name);
}

Writer::Ticket Writer::addMemberSlowly(std::string_view name) {
    writeDueComma();
    writeQuoted(stream_, name);
    stream_.write(isIndented_ ? std::string_view(": ") : std::string_view(":"));
    commaIsDue_ = false;
    return expectValue();
}

void Writer::writeString(Ticket value, std::string_view text) {
    take(value);
    // Most strings are written whole and as they are.
    if (char* const room = stream_.prepare(text.size() + 3)) {
        if (char* const end = quoteIfPlain(text, room + putDueComma(room))) {
            stream_.commit(static_cast<std::size_t>(end - room));
            commaIsDue_ = true;
            return;
        }
    }
    writeStringSlowly(text);
}

void Writer::writeStringSlowly(std::string_view text) {
    writeDueComma();
    writeQuoted(stream_, text);
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

} // namespace corvane::utils::json::encoder::detail
