#include "Scanner.hpp"

#include "../../string/Utf8Sequence.hpp"
#include "../../string/surrogates.hpp"
#include "../eightBytes.hpp"
#include "../plainText.hpp"
#include "scanNumber.hpp"
#include "syntaxError.hpp"
#include "whitespace.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <memory>
#include <string>
#include <utility>

namespace corvane::utils::json::decoder::detail {

namespace {

constexpr std::ptrdiff_t kBlock = kEight;

void appendUtf8(std::string& to, char32_t character) {
    std::array<char, 4> bytes{};
    to.append(bytes.data(), string::writeUtf8Sequence(bytes.data(), character));
}

} // namespace

Scanner::Scanner(Tape& tape)
    : tape_(tape), begin_(tape.text.data()), end_(begin_ + tape.text.size()), position_(begin_) {}

std::size_t Scanner::scan() {
    checkBeginning();
    do {
        scanValue();
    } while (goToNextValue());
    return offsetOf(position_);
}

void Scanner::checkBeginning() const {
    if (tape_.text.starts_with("\xEF\xBB\xBF")) {
        fail(begin_, "the text starts with a byte order mark, which JSON does not allow");
    }
    if (tape_.text.empty()) {
        fail(begin_, "the text is empty");
    }
    if (std::all_of(begin_, end_, isWhitespace)) {
        fail(end_, "the text holds nothing but whitespace");
    }
    if (tape_.text.size() >= std::numeric_limits<std::uint32_t>::max()) {
        fail(begin_, "the text is longer than 4 GiB");
    }
}

/// Reads the value that comes next. Of an object or array that is not empty it reads no more than
/// the beginning, up to its first value, and then that value likewise.
void Scanner::scanValue() {
    for (;;) {
        switch (skipWhitespace()) {
        case '{':
            openContainer(TokenKind::Object, '}');
            if (skipWhitespace() == level_->end) {
                return closeContainer();
            }
            scanName();
            continue;
        case '[':
            openContainer(TokenKind::Array, ']');
            if (skipWhitespace() == level_->end) {
                return closeContainer();
            }
            ++level_->count;
            continue;
        case '"':
            return scanString();
        case 't':
            return scanLiteral("true", TokenKind::True);
        case 'f':
            return scanLiteral("false", TokenKind::False);
        case 'n':
            return scanLiteral("null", TokenKind::Null);
        default:
            return scanNumber();
        }
    }
}

/// Goes from behind a value to the next one, out of all that is complete; false behind the root.
bool Scanner::goToNextValue() {
    while (level_ != levels_.data()) {
        const char next = skipWhitespace();
        if (next == ',') {
            ++position_;
            if (level_->end == ']') {
                ++level_->count;
            } else {
                skipWhitespace();
                scanName();
            }
            return true;
        }
        if (next != level_->end) {
            failUnexpected(position_);
        }
        closeContainer();
    }
    return false;
}

void Scanner::openContainer(TokenKind kind, char end) {
    if (level_ == &levels_.back()) {
        fail(position_, "objects and arrays are nested deeper than " +
                            std::to_string(Document::kMaximumDepth) + " levels");
    }
    *++level_ = {end, 0, tapeSize()};
    add(Token(kind, offsetOf(position_)), 0);
    ++position_;
}

void Scanner::closeContainer() {
    ++position_;
    tape_.words[level_->index + 1] = std::uint64_t{tapeSize()} << 32U | level_->count;
    --level_;
}

void Scanner::scanName() {
    if (peek() != '"') {
        failUnexpected(position_);
    }
    scanString();
    if (skipWhitespace() != ':') {
        failUnexpected(position_);
    }
    ++position_;
    ++level_->count;
}

void Scanner::scanString() {
    const char* const quote = position_++;
    skipText();
    const auto length = static_cast<std::size_t>(position_ - quote - 1);
    if (*position_ == '\\' || length > Token::kMaximumLength) {
        return scanEscapedString(quote);
    }
    ++position_;
    add(Token(TokenKind::String, offsetOf(quote), length));
}

/// Reads a string whose text, up to the place that was reached, needs no change.
void Scanner::scanEscapedString(const char* quote) {
    std::string& bytes = tape_.unescaped;
    const std::size_t begin = bytes.size();
    bytes.append(quote + 1, position_);
    while (*position_ == '\\') {
        scanEscape();
        const char* const text = position_;
        skipText();
        bytes.append(text, position_);
    }
    ++position_;
    add(Token(TokenKind::EscapedString, static_cast<std::uint32_t>(tape_.escapedStrings.size())));
    tape_.escapedStrings.push_back({begin, bytes.size() - begin, offsetOf(quote)});
}

/// Goes to the next quote or backslash of a string.
void Scanner::skipText() {
    for (;;) {
        position_ = skipPlainBytes(position_, end_);
        const char next = peek();
        if (next == '"' || next == '\\') {
            return;
        }
        if (static_cast<unsigned char>(next) < 0x80) {
            failUnexpected(position_);
        }
        position_ = skipShortSequences(position_, end_);
        if (static_cast<unsigned char>(peek()) >= 0x80) {
            const auto sequence = string::readUtf8Sequence(position_, end_);
            if (!sequence.isWellFormed) {
                failUnexpected(position_);
            }
            position_ += sequence.length;
        }
    }
}

/// Reads an escape, whose backslash comes next.
void Scanner::scanEscape() {
    ++position_;
    const auto append = [this](char character) {
        tape_.unescaped.push_back(character);
        ++position_;
    };
    switch (const char kind = peek()) {
    case '"':
    case '\\':
    case '/':
        return append(kind);
    case 'b':
        return append('\b');
    case 'f':
        return append('\f');
    case 'n':
        return append('\n');
    case 'r':
        return append('\r');
    case 't':
        return append('\t');
    case 'u':
        --position_;
        return appendUtf8(tape_.unescaped, scanEscapedCharacter());
    default:
        failUnexpected(position_);
    }
}

/// Reads a \u escape, or two that are the halves of a surrogate pair.
char32_t Scanner::scanEscapedCharacter() {
    const char* const escape = position_;
    const char32_t unit = scanCodeUnit();
    if (!string::isLeadingSurrogate(unit) && !string::isTrailingSurrogate(unit)) {
        return unit;
    }
    // A text that ends before the other half is only incomplete.
    constexpr std::string_view beginning = "\\u";
    const auto following = std::min<std::size_t>(static_cast<std::size_t>(end_ - position_), 2);
    if (string::isLeadingSurrogate(unit) &&
        beginning.starts_with(std::string_view(position_, following))) {
        const char32_t other = scanCodeUnit();
        if (string::isTrailingSurrogate(other)) {
            return string::combineSurrogates(unit, other);
        }
    }
    fail(escape, "half of a surrogate pair stands alone");
}

/// Reads a \u escape, or the end of the text within it.
char32_t Scanner::scanCodeUnit() {
    const char* const escape = position_;
    if (end_ - escape < 2) {
        failUnexpected(end_);
    }
    constexpr std::ptrdiff_t length = 4;
    const char* const digits = escape + 2;
    const char* const digitsEnd = digits + std::min(end_ - digits, length);
    std::uint32_t unit = 0;
    if (std::from_chars(digits, digitsEnd, unit, 16).ptr != digitsEnd) {
        fail(escape, "expected four hexadecimal digits after \\u");
    }
    if (digitsEnd - digits != length) {
        failUnexpected(end_);
    }
    position_ = digitsEnd;
    return unit;
}

void Scanner::scanNumber() {
    const ScannedNumber number = detail::scanNumber(position_, end_);
    switch (number.outcome) {
    case ScannedNumber::Outcome::Number:
        break;
    case ScannedNumber::Outcome::Unexpected:
        failUnexpected(number.end);
    case ScannedNumber::Outcome::OutOfRange:
        fail(position_, "the number is outside the range of a double");
    }
    add(Token(number.kind, offsetOf(position_)), number.bits);
    position_ = number.end;
}

void Scanner::scanLiteral(std::string_view literal, TokenKind kind) {
    const char* const begin = position_;
    for (const char character : literal) {
        if (peek() != character) {
            failUnexpected(position_);
        }
        ++position_;
    }
    add(Token(kind, offsetOf(begin)));
}

/// Makes room for the tokens that the text has if it goes on as it was so far. The tape lives
/// beside what its reader makes of it, so doubling would be a waste.
void Scanner::grow() {
    const std::size_t size = tapeSize();
    // At first about what texts need that people lay out.
    std::size_t capacity = tape_.text.size() / 16 + kMaximumTokenSize;
    if (size != 0) {
        const double share =
            static_cast<double>(position_ - begin_ + 1) / static_cast<double>(tape_.text.size());
        const auto expected = static_cast<std::size_t>(static_cast<double>(size) / share * 1.05);
        capacity = std::max(expected, size + size / 4 + kMaximumTokenSize);
    }
    auto words = std::make_unique_for_overwrite<std::uint64_t[]>(capacity);
    std::copy_n(tape_.words.get(), size, words.get());
    tape_.words = std::move(words);
    next_ = tape_.words.get() + size;
    limit_ = tape_.words.get() + capacity;
}

void Scanner::skipWhitespaceRun() noexcept {
    const char* position = position_;
    for (; position != end_ && isWhitespace(*position); ++position) {
        if (*position != '\n') {
            continue;
        }
        // Lines are often indented.
        std::size_t spaces = kEight;
        while (spaces == kEight && end_ - position > kBlock) {
            spaces = countSpaces(loadEightBytes(position + 1));
            position += spaces;
        }
    }
    position_ = position;
}

void Scanner::fail(const char* place, std::string_view what) const {
    throwSyntaxError(tape_, static_cast<std::size_t>(place - begin_), what);
}

void Scanner::failUnexpected(const char* place) const {
    fail(place, describeUnexpected({place, static_cast<std::size_t>(end_ - place)}));
}

} // namespace corvane::utils::json::decoder::detail
