// Writing, where the three classes call one another for every value: together, so that the compiler
// sees it as a whole.
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/numeric/format.hpp>
#include <corvane/utils/string/BasicStaticString.hpp>
#include <corvane/workbench/json/Array.hpp>
#include <corvane/workbench/json/Object.hpp>
#include <corvane/workbench/json/Value.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>

namespace corvane::workbench::json {

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

inline void Value::encodeContent(encoder::Value& target) const {
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

void Array::encode(encoder::Value& target) const {
    encoder::Array array = target.writeArray();
    encode(array);
}

void Array::encode(encoder::Array& target) const {
    for (const Value& element : elements_) {
        encoder::Value value = target.addElement();
        element.encodeContent(value);
    }
}

void Object::encode(encoder::Value& target) const {
    encoder::Object object = target.writeObject();
    encode(object);
}

void Object::encode(encoder::Object& target) const {
    for (const Member& member : members_) {
        encoder::Value value = target.addMember(member.first);
        member.second.encodeContent(value);
    }
}

void Value::encode(encoder::Value& target) const {
    encodeContent(target);
}

} // namespace corvane::workbench::json
