#include <corvane/utils/json/decoder/Value.hpp>

#include <corvane/utils/json/decoder/detail/WrappedException.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>
#include <utility>

namespace corvane::utils::json::decoder {

namespace {

/// The number's text, shortened when it is too long for a message.
[[nodiscard]] std::string numberText(std::string_view fromNumber) {
    constexpr std::size_t kLimit = 40;
    const std::size_t length =
        std::min(fromNumber.find_first_not_of("+-.0123456789eE"), fromNumber.size());
    std::string text(fromNumber.substr(0, std::min(length, kLimit)));
    return length > kLimit ? text + "..." : text;
}

[[noreturn]] void throwRangeError(const Location& location, std::string_view number,
                                  std::string_view reason) {
    std::string text = "the number ";
    text.append(number).append(reason);
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

    [[nodiscard]] T operator()(double number) const {
        if (std::trunc(number) != number) {
            fail(" is not a whole number");
        }
        // Powers of two are exact as doubles; the type's largest value may not be.
        const double limit = std::ldexp(1.0, std::numeric_limits<T>::digits);
        const double lowest = std::numeric_limits<T>::is_signed ? -limit : 0.0;
        if (number < lowest || number >= limit) {
            fail(" is out of range");
        }
        return static_cast<T>(number);
    }

private:
    [[noreturn]] void fail(std::string_view reason) const {
        throwRangeError(tape_.location(index_), numberText(tape_.text.substr(tape_.offset(index_))),
                        reason);
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
