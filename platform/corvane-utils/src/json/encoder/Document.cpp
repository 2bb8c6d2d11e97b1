#include <corvane/utils/json/encoder/Document.hpp>

#include <array>
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
    beginElement(depth, ticket);
    writeQuoted(name);
    stream_.put(':');
    if (format_ == Format::Indented) {
        stream_.put(' ');
    }
    pending_ = ++lastTicket_;
    return Value(*this, pending_);
}

Value Document::addElement(std::size_t depth, std::uint64_t ticket) {
    beginElement(depth, ticket);
    pending_ = ++lastTicket_;
    return Value(*this, pending_);
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

void Document::beginElement(std::size_t depth, std::uint64_t ticket) {
    if (levels_.size() < depth || levels_[depth - 1].ticket != ticket) {
        throw std::logic_error("the JSON object or array is complete already");
    }
    closeDownTo(depth);
    Level& level = levels_.back();
    if (!level.isEmpty) {
        stream_.put(',');
    }
    level.isEmpty = false;
    writeLineBreak();
}

void Document::closeDownTo(std::size_t depth) {
    if (pending_ != kNoTicket) {
        pending_ = kNoTicket;
        stream_.write("null");
    }
    while (levels_.size() > depth) {
        const Level level = levels_.back();
        levels_.pop_back();
        if (!level.isEmpty) {
            writeLineBreak();
        }
        stream_.put(level.isObject ? '}' : ']');
    }
}

void Document::writeLineBreak() {
    if (format_ == Format::Indented) {
        stream_.put('\n');
        for (std::size_t level = 0; level != levels_.size(); ++level) {
            stream_.write("  ");
        }
    }
}

void Document::writeQuoted(std::string_view text) {
    stream_.put('"');
    const char* position = text.data();
    const char* const end = position + text.size();
    const char* written = position;
    const auto writeRun = [&] {
        stream_.write({written, static_cast<std::size_t>(position - written)});
    };
    while (position != end) {
        if (kIsClean[static_cast<unsigned char>(*position)]) {
            ++position;
        } else if (static_cast<unsigned char>(*position) < 0x80) {
            writeRun();
            writeEscape(stream_, *position);
            written = ++position;
        } else {
            const auto sequence = string::readUtf8Sequence(position, end);
            if (!sequence.isWellFormed) {
                writeRun();
                stream_.write("\xEF\xBF\xBD"); // U+FFFD
                written = position + sequence.length;
            }
            position += sequence.length;
        }
    }
    writeRun();
    stream_.put('"');
}

} // namespace corvane::utils::json::encoder
