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

Value::Value(std::string text) : text_(new std::string(std::move(text))), kind_(Kind::String) {}
Value::Value(std::string_view text) : Value() {
    makeText(text);
}
Value::Value(const char* text) : Value(std::string_view(text)) {}

Value::Value(const Value& other) : Value() {
    switch (other.kind_) {
    case Kind::Object:
        std::construct_at(&object_, other.object_);
        break;
    case Kind::Array:
        std::construct_at(&array_, other.array_);
        break;
    case Kind::String:
        text_ = new std::string(*other.text_);
        break;
    case Kind::SignedInteger:
        signedInteger_ = other.signedInteger_;
        break;
    case Kind::UnsignedInteger:
        unsignedInteger_ = other.unsignedInteger_;
        break;
    case Kind::Double:
        double_ = other.double_;
        break;
    case Kind::Boolean:
        boolean_ = other.boolean_;
        break;
    case Kind::Null:
        break;
    }
    kind_ = other.kind_;
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
    switch (kind_) {
    case Kind::Object:
        return std::destroy_at(&object_);
    case Kind::Array:
        return std::destroy_at(&array_);
    case Kind::String:
        delete text_;
        return;
    default:
        return;
    }
}

void Value::take(Value& other) noexcept {
    switch (other.kind_) {
    case Kind::Object:
        std::construct_at(&object_, std::move(other.object_));
        std::destroy_at(&other.object_);
        break;
    case Kind::Array:
        std::construct_at(&array_, std::move(other.array_));
        std::destroy_at(&other.array_);
        break;
    case Kind::String:
        text_ = other.text_;
        break;
    case Kind::SignedInteger:
        signedInteger_ = other.signedInteger_;
        break;
    case Kind::UnsignedInteger:
        unsignedInteger_ = other.unsignedInteger_;
        break;
    case Kind::Double:
        double_ = other.double_;
        break;
    case Kind::Boolean:
        boolean_ = other.boolean_;
        break;
    case Kind::Null:
        break;
    }
    kind_ = std::exchange(other.kind_, Kind::Null);
}

void Value::makeText(std::string_view text) {
    text_ = new std::string(text);
    kind_ = Kind::String;
}

bool Value::operator==(const Value& other) const {
    if (kind() != other.kind()) {
        return false;
    }
    switch (kind()) {
    case Kind::Object:
        return object_ == other.object_;
    case Kind::Array:
        return array_ == other.array_;
    case Kind::String:
        return *text_ == *other.text_;
    case Kind::SignedInteger:
        return signedInteger_ == other.signedInteger_;
    case Kind::UnsignedInteger:
        return unsignedInteger_ == other.unsignedInteger_;
    case Kind::Double:
        return double_ == other.double_;
    case Kind::Boolean:
        return boolean_ == other.boolean_;
    case Kind::Null:
        break;
    }
    return true;
}

void Value::encode(encoder::Value& target) const {
    switch (kind()) {
    case Kind::Object:
        return object_.encode(target);
    case Kind::Array:
        return array_.encode(target);
    case Kind::String:
        return target.writeString(*text_);
    case Kind::SignedInteger:
        return target.writeNumber(utils::numeric::format(signedInteger_));
    case Kind::UnsignedInteger:
        return target.writeNumber(utils::numeric::format(unsignedInteger_));
    case Kind::Double:
        return writeDouble(target, double_);
    case Kind::Boolean:
        return target.writeBool(boolean_);
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
