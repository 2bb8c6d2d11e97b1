#include <corvane/workbench/json/Value.hpp>

#include "internal/text.hpp"
#include "internal/throwAt.hpp"

#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/numeric/format.hpp>
#include <corvane/utils/string/BasicStaticString.hpp>

#include <array>
#include <charconv>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace corvane::workbench::json {

namespace decoder = utils::json::decoder;
namespace encoder = utils::json::encoder;

namespace {

using DoubleText = utils::string::BasicStaticString<char, 24>;

/// A double that reads back as a double: whole numbers get ".0", or an exponent where that would
/// not fit.
DoubleText formatDouble(double number) {
    DoubleText text = utils::numeric::format(number);
    if (text.view().find_first_not_of("-0123456789") != std::string_view::npos) {
        return text;
    }
    constexpr std::string_view fraction = ".0";
    if (text.size() + fraction.size() <= DoubleText::capacity()) {
        return text.append(fraction);
    }
    std::array<char, DoubleText::capacity()> scientific{};
    const std::to_chars_result end =
        std::to_chars(scientific.data(), scientific.data() + scientific.size(), number,
                      std::chars_format::scientific);
    return DoubleText(std::string_view(scientific.data(), end.ptr));
}

void writeDouble(encoder::Value& target, double number) {
    if (std::isfinite(number)) {
        target.writeNumber(formatDouble(number));
    } else {
        target.writeNull();
    }
}

} // namespace

Value::Value() noexcept : m_content(std::in_place_type<Null>) {}
Value::Value(Null) noexcept : Value() {}
Value::Value(Object object) noexcept : m_content(std::in_place_type<Object>, std::move(object)) {}
Value::Value(Array array) noexcept : m_content(std::in_place_type<Array>, std::move(array)) {}
Value::Value(std::string text) noexcept
    : m_content(std::in_place_type<std::string>, std::move(text)) {}
Value::Value(std::string_view text) : m_content(std::in_place_type<std::string>, text) {}
Value::Value(const char* text) : m_content(std::in_place_type<std::string>, text) {}
Value::Value(double number) noexcept : m_content(std::in_place_type<double>, number) {}

Value::Value(const Value& other) = default;
Value::Value(Value&& other) noexcept = default;
Value::~Value() = default;

Value& Value::operator=(const Value& other) {
    // `other` may be nested in this value: copy it before the content goes.
    Value copy(other);
    m_content.swap(copy.m_content);
    return *this;
}

Value& Value::operator=(Value&& other) noexcept {
    Value taken(std::move(other));
    m_content.swap(taken.m_content);
    return *this;
}

bool Value::operator==(const Value& other) const {
    if (kind() != other.kind()) {
        return false;
    }
    switch (kind()) {
    case Kind::Object:
        return *getIf<Object>() == *other.getIf<Object>();
    case Kind::Array:
        return *getIf<Array>() == *other.getIf<Array>();
    case Kind::String:
        return *getIf<std::string>() == *other.getIf<std::string>();
    case Kind::SignedInteger:
        return *getIf<std::int64_t>() == *other.getIf<std::int64_t>();
    case Kind::UnsignedInteger:
        return *getIf<std::uint64_t>() == *other.getIf<std::uint64_t>();
    case Kind::Double:
        return *getIf<double>() == *other.getIf<double>();
    case Kind::Boolean:
        return *getIf<bool>() == *other.getIf<bool>();
    case Kind::Null:
        break;
    }
    return true;
}

void Value::decode(decoder::Value& source, DecodingOptions options) {
    Value decoded;
    decoded.decodeContent(source, options);
    *this = std::move(decoded);
}

void Value::decodeContent(decoder::Value& source, DecodingOptions options) {
    if (source.isObject()) {
        decoder::Object object = source.asObject();
        m_content.emplace<Object>().decodeMembers(object, options);
    } else if (source.isArray()) {
        decoder::Array array = source.asArray();
        m_content.emplace<Array>().decodeElements(array);
    } else if (source.isString()) {
        m_content.emplace<std::string>(source.asString().view());
    } else if (source.isNumber()) {
        const decoder::Value::Number number = source.asNumber();
        if (const auto* const signedInteger = std::get_if<std::int64_t>(&number)) {
            m_content.emplace<std::int64_t>(*signedInteger);
        } else if (const auto* const unsignedInteger = std::get_if<std::uint64_t>(&number)) {
            m_content.emplace<std::uint64_t>(*unsignedInteger);
        } else {
            m_content.emplace<double>(*std::get_if<double>(&number));
        }
    } else if (source.isBool()) {
        m_content.emplace<bool>(source.asBool());
    } else if (!source.isNull()) {
        internal::throwAt(source.location(),
                          std::logic_error("internal_error: unsupported JSON value type"));
    }
}

void Value::encode(encoder::Value& target) const {
    switch (kind()) {
    case Kind::Object:
        return getIf<Object>()->encode(target);
    case Kind::Array:
        return getIf<Array>()->encode(target);
    case Kind::String:
        return target.writeString(*getIf<std::string>());
    case Kind::SignedInteger:
        return target.writeNumber(utils::numeric::format(*getIf<std::int64_t>()));
    case Kind::UnsignedInteger:
        return target.writeNumber(utils::numeric::format(*getIf<std::uint64_t>()));
    case Kind::Double:
        return writeDouble(target, *getIf<double>());
    case Kind::Boolean:
        return target.writeBool(*getIf<bool>());
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
