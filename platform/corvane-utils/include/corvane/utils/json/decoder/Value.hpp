#pragma once

#include <corvane/utils/export.hpp>
#include <corvane/utils/json/decoder/Location.hpp>
#include <corvane/utils/json/decoder/String.hpp>
#include <corvane/utils/json/decoder/detail/Tape.hpp>

#include <bit>
#include <cstdint>
#include <string_view>
#include <variant>

namespace corvane::utils::json::decoder {

class Array;
class Object;

/// A value of a JSON text. Values are handed out by a Document, an Object or an Array, and a
/// reference to one is valid until its owner goes on to the next value. The text was checked as a
/// whole beforehand, so a value that is not read needs no care.
///
/// The conversions throw when the value is of another kind: detail::WrappedException of
/// std::runtime_error, located at the value, with a text such as
/// "expected a string, found a number".
class CORVANE_UTILS_EXPORT Value {
public:
    /// An integer literal is signed when it fits, else unsigned when that fits, else a double.
    /// Everything else, "-0" among it, is a double.
    using Number = std::variant<std::int64_t, std::uint64_t, double>;

    Value(const Value&) = delete;
    Value& operator=(const Value&) = delete;

    /// Which of the six kinds of JSON the value is; exactly one is true.
    /// @{
    [[nodiscard]] bool isObject() const noexcept { return kind() == detail::TokenKind::Object; }
    [[nodiscard]] bool isArray() const noexcept { return kind() == detail::TokenKind::Array; }
    [[nodiscard]] bool isString() const noexcept {
        return kind() == detail::TokenKind::String || kind() == detail::TokenKind::EscapedString;
    }
    [[nodiscard]] bool isNumber() const noexcept {
        return kind() >= detail::TokenKind::Int64 && kind() <= detail::TokenKind::Double;
    }
    [[nodiscard]] bool isBool() const noexcept {
        return kind() == detail::TokenKind::True || kind() == detail::TokenKind::False;
    }
    [[nodiscard]] bool isNull() const noexcept { return kind() == detail::TokenKind::Null; }
    /// @}

    /// What the value is, for messages: "an object", "an array", "a string", "a number",
    /// "a boolean", "null".
    [[nodiscard]] std::string_view kindName() const noexcept;

    /// Each call begins a walk of its own. Defined in Object.hpp and Array.hpp.
    /// @{
    [[nodiscard]] Object asObject() const;
    [[nodiscard]] Array asArray() const;
    /// @}

    /// The content. No kind is converted into another.
    /// @{
    [[nodiscard]] String asString() const {
        if (!isString()) {
            throwUnexpected("a string");
        }
        return String(tape_->string(index_));
    }
    [[nodiscard]] bool asBool() const {
        if (!isBool()) {
            throwUnexpected("a boolean");
        }
        return kind() == detail::TokenKind::True;
    }
    [[nodiscard]] Number asNumber() const {
        switch (kind()) {
        case detail::TokenKind::Int64:
            return std::bit_cast<std::int64_t>(tape_->bits(index_));
        case detail::TokenKind::UInt64:
            return tape_->bits(index_);
        case detail::TokenKind::Double:
            return std::bit_cast<double>(tape_->bits(index_));
        default:
            throwUnexpected("a number");
        }
    }
    /// @}

    /// The number as that type, however it is written: "1e3" and "1000.0" are 1000. Its digits
    /// decide, not the double that it is rounded to.
    /// @throws detail::WrappedException of std::out_of_range when the number has a fraction ("the
    ///         number 1.5 is not a whole number") or does not fit ("the number 1e30 is out of
    ///         range").
    /// @{
    [[nodiscard]] std::int64_t asInt64() const;
    [[nodiscard]] std::uint64_t asUInt64() const;
    /// @}

    /// The number as a double; an integer is rounded to the nearest one.
    [[nodiscard]] double asDouble() const;

    /// Where the value begins.
    [[nodiscard]] Location location() const;

    /// Leaves the value unread. Nothing depends on this call; it says in the caller's code that
    /// the value is meant to be ignored.
    void skip() const noexcept {}

private:
    friend class Array;
    friend class Document;
    friend class Object;

    Value(const detail::Tape& tape, std::uint32_t index) noexcept : tape_(&tape), index_(index) {}

    [[nodiscard]] detail::TokenKind kind() const noexcept { return (*tape_)[index_].kind(); }
    [[noreturn]] void throwUnexpected(std::string_view expected) const;

    const detail::Tape* tape_;
    std::uint32_t index_;
};

} // namespace corvane::utils::json::decoder
