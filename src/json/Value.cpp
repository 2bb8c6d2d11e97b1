#include <corvane/workbench/json/Value.hpp>

#include "internal/text.hpp"

#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/numeric/format.hpp>
#include <corvane/utils/string/BasicStaticString.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <memory>
#include <stdexcept>
#include <utility>
#include <variant>

namespace corvane::workbench::json {

namespace decoder = utils::json::decoder;
namespace encoder = utils::json::encoder;

namespace {

using DoubleText = utils::string::BasicStaticString<char, 24>;

[[nodiscard]] bool isWhole(double number) noexcept {
    // Beyond 2^53 every double is.
    return !(std::abs(number) < 9007199254740992.0) ||
           number == static_cast<double>(static_cast<std::int64_t>(number));
}

/// A whole number that reads back as a double: with ".0", or an exponent where that would not fit.
DoubleText formatWhole(double number) {
    DoubleText text = utils::numeric::format(number);
    const auto isDigitOrSign = [](char character) {
        return (character >= '0' && character <= '9') || character == '-';
    };
    if (!std::ranges::all_of(text, isDigitOrSign)) {
        return text;
    }
    constexpr std::string_view fraction = ".0";
    if (text.size() + fraction.size() <= DoubleText::capacity()) {
        return text.append(fraction);
    }
    text.overwrite([number](char* begin, char* end) {
        return std::to_chars(begin, end, number, std::chars_format::scientific).ptr;
    });
    return text;
}

void writeDouble(encoder::Value& target, double number) {
    if (!isWhole(number)) {
        target.writeNumber(utils::numeric::format(number));
    } else if (std::isfinite(number)) {
        target.writeNumber(formatWhole(number));
    } else {
        target.writeNull();
    }
}

} // namespace

Value::Value(std::string text) : m_text(new std::string(std::move(text))), m_kind(Kind::String) {}
Value::Value(std::string_view text) : Value() {
    makeText(text);
}
Value::Value(const char* text) : Value(std::string_view(text)) {}

Value::Value(const Value& other) : Value() {
    switch (other.m_kind) {
    case Kind::Object:
        std::construct_at(&m_object, other.m_object);
        break;
    case Kind::Array:
        std::construct_at(&m_array, other.m_array);
        break;
    case Kind::String:
        m_text = new std::string(*other.m_text);
        break;
    case Kind::SignedInteger:
        m_signedInteger = other.m_signedInteger;
        break;
    case Kind::UnsignedInteger:
        m_unsignedInteger = other.m_unsignedInteger;
        break;
    case Kind::Double:
        m_double = other.m_double;
        break;
    case Kind::Boolean:
        m_boolean = other.m_boolean;
        break;
    case Kind::Null:
        break;
    }
    m_kind = other.m_kind;
}

Value& Value::operator=(const Value& other) {
    // `other` may be nested in this value: copy it before the content goes.
    Value copy(other);
    return *this = std::move(copy);
}

Value& Value::operator=(Value&& other) noexcept {
    Value taken(std::move(other));
    clear();
    take(taken);
    return *this;
}

void Value::destroyContent() noexcept {
    switch (m_kind) {
    case Kind::Object:
        return std::destroy_at(&m_object);
    case Kind::Array:
        return std::destroy_at(&m_array);
    case Kind::String:
        delete m_text;
        return;
    default:
        return;
    }
}

void Value::take(Value& other) noexcept {
    switch (other.m_kind) {
    case Kind::Object:
        std::construct_at(&m_object, std::move(other.m_object));
        std::destroy_at(&other.m_object);
        break;
    case Kind::Array:
        std::construct_at(&m_array, std::move(other.m_array));
        std::destroy_at(&other.m_array);
        break;
    case Kind::String:
        m_text = other.m_text;
        break;
    case Kind::SignedInteger:
        m_signedInteger = other.m_signedInteger;
        break;
    case Kind::UnsignedInteger:
        m_unsignedInteger = other.m_unsignedInteger;
        break;
    case Kind::Double:
        m_double = other.m_double;
        break;
    case Kind::Boolean:
        m_boolean = other.m_boolean;
        break;
    case Kind::Null:
        break;
    }
    m_kind = std::exchange(other.m_kind, Kind::Null);
}

void Value::makeText(std::string_view text) {
    m_text = new std::string(text);
    m_kind = Kind::String;
}

bool Value::operator==(const Value& other) const {
    if (kind() != other.kind()) {
        return false;
    }
    switch (kind()) {
    case Kind::Object:
        return m_object == other.m_object;
    case Kind::Array:
        return m_array == other.m_array;
    case Kind::String:
        return *m_text == *other.m_text;
    case Kind::SignedInteger:
        return m_signedInteger == other.m_signedInteger;
    case Kind::UnsignedInteger:
        return m_unsignedInteger == other.m_unsignedInteger;
    case Kind::Double:
        return m_double == other.m_double;
    case Kind::Boolean:
        return m_boolean == other.m_boolean;
    case Kind::Null:
        break;
    }
    return true;
}

void Value::encode(encoder::Value& target) const {
    switch (kind()) {
    case Kind::Object:
        return m_object.encode(target);
    case Kind::Array:
        return m_array.encode(target);
    case Kind::String:
        return target.writeString(*m_text);
    case Kind::SignedInteger:
        return target.writeNumber(utils::numeric::format(m_signedInteger));
    case Kind::UnsignedInteger:
        return target.writeNumber(utils::numeric::format(m_unsignedInteger));
    case Kind::Double:
        return writeDouble(target, m_double);
    case Kind::Boolean:
        return target.writeBool(m_boolean);
    case Kind::Null:
        return target.writeNull();
    }
}

tl::expected<Value, std::wstring> Value::fromString(std::string_view text,
                                                    DecodingOptions options) {
    return internal::fromText<Value>(
        text, [options](Value& value, decoder::Value& root) { value.decode(root, options); });
}

std::string Value::toString(encoder::Document::Format format) const {
    return internal::toText(*this, format);
}

} // namespace corvane::workbench::json
