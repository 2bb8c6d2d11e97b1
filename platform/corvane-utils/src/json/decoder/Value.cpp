#include <corvane/utils/json/decoder/Value.hpp>

#include "exactInteger.hpp"
#include <corvane/utils/json/decoder/detail/WrappedException.hpp>

#include <limits>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

namespace corvane::utils::json::decoder {

namespace {

/// The number at the beginning of a text.
[[nodiscard]] std::string_view numberAt(std::string_view text) noexcept {
    return text.substr(0, text.find_first_not_of("+-.0123456789eE"));
}

[[noreturn]] void throwRangeError(const Location& location, std::string_view number,
                                  std::string_view reason) {
    constexpr std::size_t limit = 40;
    std::string text = "the number ";
    text.append(number.substr(0, limit)).append(number.size() > limit ? "..." : "").append(reason);
    throw detail::WrappedException<std::out_of_range>(location, std::out_of_range(text));
}

/// Gives a number as the integer type T.
template <class T>
class IntegerConversion {
public:
    IntegerConversion(const detail::Tape& tape, std::uint32_t index) noexcept
        : tape_(tape), index_(index) {}

    template <class Integer>
    [[nodiscard]] T operator()(Integer number) const {
        if (!std::in_range<T>(number)) {
            fail(" is out of range");
        }
        return static_cast<T>(number);
    }

    /// A double is the number rounded: its digits decide.
    [[nodiscard]] T operator()(double) const {
        const auto [outcome, magnitude, isNegative] = detail::readExactInteger(text());
        if (outcome == detail::ExactInteger::Outcome::Fraction) {
            fail(" is not a whole number");
        }
        constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<T>::max());
        constexpr std::uint64_t largestNegative = std::is_signed_v<T> ? largest + 1 : 0;
        if (outcome == detail::ExactInteger::Outcome::OutOfRange ||
            magnitude > (isNegative ? largestNegative : largest)) {
            fail(" is out of range");
        }
        return static_cast<T>(isNegative ? 0 - magnitude : magnitude);
    }

private:
    [[nodiscard]] std::string_view text() const noexcept {
        return numberAt(tape_.text.substr(tape_.offset(index_)));
    }
    [[noreturn]] void fail(std::string_view reason) const {
        throwRangeError(tape_.location(index_), text(), reason);
    }

    const detail::Tape& tape_;
    std::uint32_t index_;
};

} // namespace

std::string_view Value::kindName() const noexcept {
    switch (kind()) {
    case detail::TokenKind::Object:
        return "an object";
    case detail::TokenKind::Array:
        return "an array";
    case detail::TokenKind::String:
    case detail::TokenKind::EscapedString:
        return "a string";
    case detail::TokenKind::Int64:
    case detail::TokenKind::UInt64:
    case detail::TokenKind::Double:
        return "a number";
    case detail::TokenKind::True:
    case detail::TokenKind::False:
        return "a boolean";
    case detail::TokenKind::Null:
        break;
    }
    return "null";
}

std::int64_t Value::asInt64() const {
    return std::visit(IntegerConversion<std::int64_t>(*tape_, index_), asNumber());
}

std::uint64_t Value::asUInt64() const {
    return std::visit(IntegerConversion<std::uint64_t>(*tape_, index_), asNumber());
}

double Value::asDouble() const {
    return std::visit([](auto number) { return static_cast<double>(number); }, asNumber());
}

Location Value::location() const {
    return tape_->location(index_);
}

void Value::throwUnexpected(std::string_view expected) const {
    std::string text = "expected ";
    text.append(expected).append(", found ").append(kindName());
    throw detail::WrappedException<std::runtime_error>(location(), std::runtime_error(text));
}

} // namespace corvane::utils::json::decoder
