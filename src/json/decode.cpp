// Reading, where the three classes call one another for every value: together, so that the compiler
// sees it as a whole.
#include "internal/MemberIndex.hpp"
#include "internal/throwAt.hpp"

#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/workbench/json/Array.hpp>
#include <corvane/workbench/json/Object.hpp>
#include <corvane/workbench/json/Value.hpp>

#include <format>
#include <memory>
#include <stdexcept>
#include <tuple>
#include <utility>
#include <variant>

namespace corvane::workbench::json {

namespace decoder = utils::json::decoder;

namespace {

[[noreturn]] void throwDuplicateMember(const decoder::Name& name) {
    internal::throwAt(name.location(), std::runtime_error(std::format(
                                           "duplicate member \"{}\" in JSON object", name.text())));
}

} // namespace

inline void Value::decodeContent(decoder::Value& source, DecodingOptions options) {
    if (source.isNumber()) {
        decodeNumber(source);
    } else if (source.isString()) {
        makeText(source.asString().view());
    } else if (source.isArray() || source.isObject()) {
        decodeContainer(source, options);
    } else if (source.isBool()) {
        m_boolean = source.asBool();
        m_kind = Kind::Boolean;
    } else if (!source.isNull()) {
        internal::throwAt(source.location(),
                          std::logic_error("internal_error: unsupported JSON value type"));
    }
}

inline void Value::decodeNumber(const decoder::Value& source) {
    const decoder::Value::Number number = source.asNumber();
    if (const auto* const signedInteger = std::get_if<std::int64_t>(&number)) {
        m_signedInteger = *signedInteger;
        m_kind = Kind::SignedInteger;
    } else if (const auto* const unsignedInteger = std::get_if<std::uint64_t>(&number)) {
        m_unsignedInteger = *unsignedInteger;
        m_kind = Kind::UnsignedInteger;
    } else {
        m_double = *std::get_if<double>(&number);
        m_kind = Kind::Double;
    }
}

void Value::decodeContainer(decoder::Value& source, DecodingOptions options) {
    if (source.isArray()) {
        decoder::Array array = source.asArray();
        std::construct_at(&m_array);
        m_kind = Kind::Array;
        m_array.decodeElements(array);
    } else {
        decoder::Object object = source.asObject();
        std::construct_at(&m_object);
        m_kind = Kind::Object;
        m_object.decodeMembers(object, options);
    }
}

void Array::decodeElements(decoder::Array& source) {
    m_elements.reserve(source.elementCount());
    for (decoder::Value& element : source) {
        // Nested values are read with default options, whatever holds for the outermost one.
        m_elements.emplace_back().decodeContent(element, {});
    }
}

void Object::decodeMembers(decoder::Object& source, DecodingOptions options) {
    m_members.reserve(source.memberCount());
    internal::MemberIndex index(m_members, source.memberCount());
    for (const decoder::Member& member : source) {
        const std::string_view name = member.name.text();
        const std::size_t position = index.findOrEnter(name);
        // Nested values are read with default options, whatever holds for the outermost one.
        if (position == internal::MemberIndex::kNone) {
            m_members
                .emplace_back(std::piecewise_construct, std::forward_as_tuple(name),
                              std::forward_as_tuple())
                .second.decodeContent(member.value, {});
        } else if (options.allowDuplicateMembers) {
            m_members[position].second.decode(member.value);
        } else {
            throwDuplicateMember(member.name);
        }
    }
}

void Value::decode(decoder::Value& source, DecodingOptions options) {
    Value decoded;
    decoded.decodeContent(source, options);
    *this = std::move(decoded);
}

} // namespace corvane::workbench::json
