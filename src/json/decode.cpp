// Reading, where the three classes call one another for every value: together, so that the compiler
// sees it as a whole.
#include "internal/MemberIndex.hpp"
#include "internal/decodingErrors.hpp"
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/workbench/json/Array.hpp>
#include <corvane/workbench/json/Object.hpp>
#include <corvane/workbench/json/Value.hpp>

#include <memory>
#include <tuple>
#include <utility>
#include <variant>

namespace corvane::workbench::json {

namespace decoder = utils::json::decoder;

inline void Value::decodeContent(decoder::Value& source, DecodingOptions options) {
    if (source.isNumber()) {
        decodeNumber(source);
    } else if (source.isString()) {
        makeText(source.asString().view());
    } else if (source.isArray() || source.isObject()) {
        decodeContainer(source, options);
    } else if (source.isBool()) {
        boolean_ = source.asBool();
        kind_ = Kind::Boolean;
    } else if (!source.isNull()) {
        internal::throwUnsupportedType(source);
    }
}

inline void Value::decodeNumber(const decoder::Value& source) {
    const decoder::Value::Number number = source.asNumber();
    if (const auto* const signedInteger = std::get_if<std::int64_t>(&number)) {
        signedInteger_ = *signedInteger;
        kind_ = Kind::SignedInteger;
    } else if (const auto* const unsignedInteger = std::get_if<std::uint64_t>(&number)) {
        unsignedInteger_ = *unsignedInteger;
        kind_ = Kind::UnsignedInteger;
    } else {
        double_ = *std::get_if<double>(&number);
        kind_ = Kind::Double;
    }
}

void Value::decodeContainer(decoder::Value& source, DecodingOptions options) {
    if (source.isArray()) {
        decoder::Array array = source.asArray();
        std::construct_at(&array_);
        kind_ = Kind::Array;
        array_.decodeElements(array);
    } else {
        decoder::Object object = source.asObject();
        std::construct_at(&object_);
        kind_ = Kind::Object;
        object_.decodeMembers(object, options);
    }
}

void Array::decodeElements(decoder::Array& source) {
    elements_.reserve(source.elementCount());
    for (decoder::Value& element : source) {
        // Nested values are read with default options, whatever holds for the outermost one.
        elements_.emplace_back().decodeContent(element, {});
    }
}

void Object::decodeMembers(decoder::Object& source, DecodingOptions options) {
    members_.reserve(source.memberCount());
    internal::MemberIndex index(members_, source.memberCount());
    for (const decoder::Member& member : source) {
        // Nested values are read with default options, whatever holds for the outermost one.
        valueOf(member.name, index, options).decodeContent(member.value, {});
    }
}

/// The null value of the member that is to be decoded: of a new one, or of one that comes again.
Value& Object::valueOf(const decoder::Name& name, internal::MemberIndex& index,
                       DecodingOptions options) {
    const std::string_view text = name.text();
    const std::size_t position = index.findOrEnter(text);
    if (position == internal::MemberIndex::kNone) {
        return members_
            .emplace_back(std::piecewise_construct, std::forward_as_tuple(text),
                          std::forward_as_tuple())
            .second;
    }
    if (!options.allowDuplicateMembers) {
        internal::throwDuplicateMember(name);
    }
    return members_[position].second = Value();
}

void Value::decode(decoder::Value& source, DecodingOptions options) {
    Value decoded;
    decoded.decodeContent(source, options);
    *this = std::move(decoded);
}

} // namespace corvane::workbench::json
