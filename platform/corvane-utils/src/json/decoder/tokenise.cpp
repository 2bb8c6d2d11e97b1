// The one source file that knows Boost.JSON: its incremental parser checks the grammar, the
// encoding and the depth, and calls TapeWriter for each token.
#include "tokenise.hpp"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

// The parser recurses with the depth of the text, so its frames must be small.
#define BOOST_JSON_STACK_BUFFER_SIZE 128
#include <boost/json/basic_parser_impl.hpp>
#include <boost/json/detail/charconv/impl/from_chars.ipp>
#include <boost/json/detail/impl/default_resource.ipp>
#include <boost/json/detail/impl/except.ipp>
#include <boost/json/detail/impl/shared_resource.ipp>
#include <boost/json/detail/impl/stack.ipp>
#include <boost/json/impl/error.ipp>

#include <corvane/utils/json/decoder/detail/WrappedException.hpp>

#include "../../string/Utf8Sequence.hpp"

namespace corvane::utils::json::decoder::detail {

namespace {

namespace parsing = boost::json;

constexpr std::string_view kHalfAlone = "half of a surrogate pair stands alone";

[[nodiscard]] constexpr bool isBetweenTokens(char character) noexcept {
    return isBlank(character) || character == ',' || character == ':' || character == ']' ||
           character == '}';
}

/// Writes the tokens of a text to a tape as the parser meets them.
class TapeWriter {
public:
    static constexpr std::size_t max_array_size = std::numeric_limits<std::size_t>::max();
    static constexpr std::size_t max_object_size = max_array_size;
    static constexpr std::size_t max_string_size = max_array_size;
    static constexpr std::size_t max_key_size = max_array_size;

    explicit TapeWriter(Tape& tape) : tape_(tape), position_(tape.text.data()) {
        // Few texts have more tokens; what is not used costs address space only.
        tape_.tokens.reserve(tape_.text.size() / 8 + 1);
    }

    /// Where the token is that was looked at last.
    [[nodiscard]] std::size_t position() const noexcept {
        return static_cast<std::size_t>(position_ - tape_.text.data());
    }

    /// Where the token begins that the parser is at.
    [[nodiscard]] std::size_t nextToken() const noexcept {
        std::size_t offset = position();
        while (offset != tape_.text.size() && isBetweenTokens(tape_.text[offset])) {
            ++offset;
        }
        return offset;
    }

    bool on_document_begin(parsing::error_code&) { return true; }
    bool on_document_end(parsing::error_code&) { return true; }

    bool on_object_begin(parsing::error_code&) { return beginContainer(TokenKind::Object); }
    bool on_object_end(std::size_t count, parsing::error_code&) { return endContainer(count); }
    bool on_array_begin(parsing::error_code&) { return beginContainer(TokenKind::Array); }
    bool on_array_end(std::size_t count, parsing::error_code&) { return endContainer(count); }

    bool on_key_part(std::string_view part, std::size_t, parsing::error_code&) {
        return addStringPart(part);
    }
    bool on_key(std::string_view part, std::size_t, parsing::error_code&) {
        return addString(part);
    }
    bool on_string_part(std::string_view part, std::size_t, parsing::error_code&) {
        return addStringPart(part);
    }
    bool on_string(std::string_view part, std::size_t, parsing::error_code&) {
        return addString(part);
    }

    bool on_number_part(std::string_view, parsing::error_code&) { return true; }
    bool on_int64(std::int64_t, std::string_view number, parsing::error_code& error) {
        return addNumber(number, error);
    }
    bool on_uint64(std::uint64_t, std::string_view number, parsing::error_code& error) {
        return addNumber(number, error);
    }
    bool on_double(double, std::string_view number, parsing::error_code& error) {
        return addNumber(number, error);
    }

    bool on_bool(bool value, parsing::error_code&) {
        return value ? addLiteral(TokenKind::True, 4) : addLiteral(TokenKind::False, 5);
    }
    bool on_null(parsing::error_code&) { return addLiteral(TokenKind::Null, 4); }

    bool on_comment_part(std::string_view, parsing::error_code&) { return true; }
    bool on_comment(std::string_view, parsing::error_code&) { return true; }

private:
    /// Goes to the next token, which is there.
    void findToken() noexcept {
        while (isBetweenTokens(*position_)) {
            ++position_;
        }
    }

    /// Adds a token that begins at position_.
    void add(TokenKind kind, std::uint64_t payload) {
        tape_.tokens.push_back(
            {kind, static_cast<std::uint32_t>(position_ - tape_.text.data()), payload});
    }

    bool beginContainer(TokenKind kind) {
        findToken();
        open_.push_back(static_cast<std::uint32_t>(tape_.tokens.size()));
        add(kind, 0);
        ++position_;
        return true;
    }

    bool endContainer(std::size_t count) {
        tape_.tokens[open_.back()].payload =
            (static_cast<std::uint64_t>(tape_.tokens.size()) << 32U) | count;
        open_.pop_back();
        return true;
    }

    bool addLiteral(TokenKind kind, std::size_t length) {
        findToken();
        add(kind, 0);
        position_ += length;
        return true;
    }

    bool addStringPart(std::string_view part) {
        if (!isEscaped_) {
            isEscaped_ = true;
            unescapedBegin_ = tape_.unescaped.size();
        }
        tape_.unescaped.append(part);
        return true;
    }

    bool addString(std::string_view lastPart) {
        if (!isEscaped_ && isWithinText(lastPart)) {
            position_ = lastPart.data() - 1;
            add(TokenKind::String, lastPart.size());
            position_ += lastPart.size() + 2;
            return true;
        }
        addStringPart(lastPart);
        isEscaped_ = false;
        findToken();
        add(TokenKind::EscapedString, tape_.escapedStrings.size());
        tape_.escapedStrings.push_back({unescapedBegin_, tape_.unescaped.size() - unescapedBegin_});
        for (++position_; *position_ != '"'; ++position_) {
            if (*position_ == '\\') {
                ++position_;
            }
        }
        ++position_;
        return true;
    }

    /// The parser has checked the number's form but leaves its value to us, which keeps the sign
    /// of zero, rounds exactly and notices what a double cannot hold.
    bool addNumber(std::string_view number, parsing::error_code& error) {
        position_ = number.data();
        const char* const end = position_ + number.size();
        std::uint64_t bits = 0;
        TokenKind kind = TokenKind::Double;
        if (number.find_first_of(".eE") == std::string_view::npos && number != "-0") {
            std::int64_t integer = 0;
            if (std::from_chars(position_, end, integer).ec == std::errc()) {
                kind = TokenKind::Int64;
                bits = std::bit_cast<std::uint64_t>(integer);
            } else if (std::from_chars(position_, end, bits).ec == std::errc()) {
                kind = TokenKind::UInt64;
            }
        }
        if (kind == TokenKind::Double) {
            double value = 0;
            if (std::from_chars(position_, end, value).ec != std::errc()) {
                error = parsing::error::not_double;
                return false;
            }
            bits = std::bit_cast<std::uint64_t>(value);
        }
        add(kind, bits);
        position_ = end;
        return true;
    }

    [[nodiscard]] bool isWithinText(std::string_view part) const noexcept {
        const std::less_equal<> isNotAfter;
        return isNotAfter(tape_.text.data(), part.data()) &&
               isNotAfter(part.data() + part.size(), tape_.text.data() + tape_.text.size());
    }

    Tape& tape_;
    /// Behind the last token that was added.
    const char* position_;
    std::vector<std::uint32_t> open_;
    bool isEscaped_ = false;
    std::size_t unescapedBegin_ = 0;
};

using Parser = parsing::basic_parser<TapeWriter>;

[[nodiscard]] std::string hexadecimal(std::uint32_t number, std::size_t digits) {
    static constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    while (digits-- != 0) {
        text.push_back(kDigits[(number >> (4 * digits)) & 0x0FU]);
    }
    return text;
}

/// What is at a place where something else should be.
[[nodiscard]] std::string unexpected(std::string_view rest) {
    if (rest.empty()) {
        return "unexpected end of the text";
    }
    const auto first = static_cast<unsigned char>(rest.front());
    if (first < 0x20 || first == 0x7F) {
        return "unexpected control character U+" + hexadecimal(first, 4);
    }
    const auto sequence = string::readUtf8Sequence(rest.data(), rest.data() + rest.size());
    if (!sequence.isWellFormed) {
        return "malformed UTF-8 at byte 0x" + hexadecimal(first, 2);
    }
    std::string text = "unexpected character ";
    const char quote = first == '\'' ? '"' : '\'';
    text += quote;
    text += rest.substr(0, sequence.length);
    text += quote;
    return text;
}

struct Fault {
    std::size_t offset;
    std::string what;
};

/// Looks for a \u escape that is wrong, from the string's opening quote up to the place where the
/// parser stopped. The parser stops at a varying place within the escape.
[[nodiscard]] std::optional<Fault> findBrokenEscape(std::string_view text, std::size_t quote,
                                                    std::size_t stop) {
    const auto unitAt = [text](std::size_t offset) -> std::optional<std::uint32_t> {
        std::uint32_t unit = 0;
        const std::string_view digits = text.substr(std::min(offset, text.size()), 6);
        if (!digits.starts_with("\\u") || digits.size() != 6 ||
            std::from_chars(digits.data() + 2, digits.data() + 6, unit, 16).ptr !=
                digits.data() + 6) {
            return std::nullopt;
        }
        return unit;
    };
    for (std::size_t offset = quote + 1; offset < stop;) {
        if (text[offset] != '\\') {
            ++offset;
        } else if (offset + 1 == text.size() || text[offset + 1] != 'u') {
            offset += 2;
        } else if (const auto unit = unitAt(offset); !unit) {
            return Fault{offset, "expected four hexadecimal digits after \\u"};
        } else if (*unit < 0xD800 || *unit > 0xDFFF) {
            offset += 6;
        } else if (*unit > 0xDBFF) {
            return Fault{offset, std::string(kHalfAlone)};
        } else if (text.substr(offset + 6, 2) == "\\u" && !unitAt(offset + 6)) {
            offset += 6;
        } else if (const auto other = unitAt(offset + 6);
                   !other || *other < 0xDC00 || *other > 0xDFFF) {
            return Fault{offset, std::string(kHalfAlone)};
        } else {
            offset += 12;
        }
    }
    return std::nullopt;
}

/// What is wrong at the place where the parser stopped.
[[nodiscard]] Fault findFault(const TapeWriter& writer, std::string_view text, std::size_t stop,
                              const parsing::error_code& error, std::size_t maximumDepth) {
    if (error == parsing::error::too_deep) {
        return {stop, "objects and arrays are nested deeper than " + std::to_string(maximumDepth) +
                          " levels"};
    }
    if (error == parsing::error::not_double) {
        // The number's beginning, not its end.
        return {writer.position(), "the number is outside the range of a double"};
    }
    const std::size_t token = writer.nextToken();
    if (stop != text.size() && token < stop && text[token] == '"') {
        if (auto fault = findBrokenEscape(text, token, stop)) {
            return *std::move(fault);
        }
    }
    return {stop, unexpected(text.substr(stop))};
}

void checkBeginning(const Tape& tape) {
    if (tape.text.starts_with("\xEF\xBB\xBF")) {
        throwSyntaxError(tape, 0,
                         "the text starts with a byte order mark, which JSON does not allow");
    }
    if (tape.text.empty()) {
        throwSyntaxError(tape, 0, "the text is empty");
    }
    if (std::all_of(tape.text.begin(), tape.text.end(), isBlank)) {
        throwSyntaxError(tape, tape.text.size(), "the text holds nothing but blanks");
    }
    if (tape.text.size() > std::numeric_limits<std::uint32_t>::max()) {
        throwSyntaxError(tape, 0, "the text is longer than 4 GiB");
    }
}

} // namespace

std::size_t tokenise(Tape& tape, std::size_t maximumDepth) {
    checkBeginning(tape);
    parsing::parse_options options;
    options.max_depth = maximumDepth;
    options.numbers = parsing::number_precision::none;
    Parser parser(options, tape);
    parsing::error_code error;
    const std::size_t end = parser.write_some(false, tape.text.data(), tape.text.size(), error);
    if (error) {
        const Fault fault = findFault(parser.handler(), tape.text, end, error, maximumDepth);
        throwSyntaxError(tape, fault.offset, fault.what);
    }
    return end;
}

void throwSyntaxError(const Tape& tape, std::size_t offset, std::string_view what) {
    const Location location = tape.locate(offset);
    std::string text = "JSON syntax error (line " + std::to_string(location.line()) + "): ";
    text += what;
    throw WrappedException<std::runtime_error>(location, std::runtime_error(text));
}

} // namespace corvane::utils::json::decoder::detail
