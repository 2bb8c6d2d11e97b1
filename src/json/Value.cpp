#include <corvane/workbench/json/Value.hpp>

#include "internal/text.hpp"
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Value.hpp>

#include <memory>
#include <utility>

namespace corvane::workbench::json {

namespace decoder = utils::json::decoder;
namespace encoder = utils::json::encoder;

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

tl::expected<Value, std::wstring> Value::fromString(std::string_view text,
                                                    DecodingOptions options) {
    return internal::fromText<Value>(
        text, [options](Value& value, decoder::Value& root) { value.decode(root, options); });
}

std::string Value::toString(encoder::Document::Format format) const {
    return internal::toText(*this, format);
}

} // namespace corvane::workbench::json
