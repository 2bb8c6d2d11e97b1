#pragma once

// Compares the document model with two independent JSON libraries.

#include <corvane/workbench/json/Value.hpp>

#include <nlohmann/json.hpp>
#include <simdjson.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace corvane::workbench::json::test {

/// Both judges read "-0" as an integer; here it is the double that keeps its sign.
inline bool isNegativeZero(const Value& value) {
    return value.is<double>() && value.get<double>() == 0.0;
}

/// Same kinds, same values, same order of members.
inline bool isSame(const Value& value, const nlohmann::ordered_json& judged) {
    using Kind = nlohmann::ordered_json::value_t;
    switch (judged.type()) {
    case Kind::object: {
        const Object* const object = value.getIf<Object>();
        auto member = judged.begin();
        return object != nullptr && object->size() == judged.size() &&
               std::ranges::all_of(*object, [&](const Object::Member& own) {
                   const bool same = own.first == member.key() && isSame(own.second, *member);
                   ++member;
                   return same;
               });
    }
    case Kind::array:
        return value.is<Array>() &&
               std::ranges::equal(value.get<Array>(), judged,
                                  [](const Value& own, const nlohmann::ordered_json& other) {
                                      return isSame(own, other);
                                  });
    case Kind::string:
        return value == Value(judged.get<std::string>());
    case Kind::number_integer:
        return value == Value(judged.get<std::int64_t>()) ||
               (judged.get<std::int64_t>() == 0 && isNegativeZero(value));
    case Kind::number_unsigned: {
        // The judge takes every integer without a sign for unsigned.
        const auto number = judged.get<std::uint64_t>();
        return std::in_range<std::int64_t>(number)
                   ? value == Value(static_cast<std::int64_t>(number))
                   : value == Value(number);
    }
    case Kind::number_float:
        return value == Value(judged.get<double>());
    case Kind::boolean:
        return value == Value(judged.get<bool>());
    case Kind::null:
        return value == Value();
    default:
        return false;
    }
}

inline bool isSame(const Value& value, const simdjson::dom::element& judged) {
    using Kind = simdjson::dom::element_type;
    switch (judged.type()) {
    case Kind::OBJECT: {
        const Object* const object = value.getIf<Object>();
        const simdjson::dom::object members = judged.get_object().value();
        if (object == nullptr) {
            return false;
        }
        auto own = object->begin();
        for (const simdjson::dom::key_value_pair member : members) {
            if (own == object->end() || own->first != member.key ||
                !isSame(own->second, member.value)) {
                return false;
            }
            ++own;
        }
        return own == object->end();
    }
    case Kind::ARRAY: {
        const Array* const array = value.getIf<Array>();
        const simdjson::dom::array elements = judged.get_array().value();
        if (array == nullptr) {
            return false;
        }
        auto own = array->begin();
        for (const simdjson::dom::element element : elements) {
            if (own == array->end() || !isSame(*own, element)) {
                return false;
            }
            ++own;
        }
        return own == array->end();
    }
    case Kind::STRING:
        return value == Value(judged.get_string().value());
    case Kind::INT64:
        return value == Value(judged.get_int64().value()) ||
               (judged.get_int64().value() == 0 && isNegativeZero(value));
    case Kind::UINT64:
        return value == Value(judged.get_uint64().value());
    case Kind::DOUBLE:
        return value == Value(judged.get_double().value());
    case Kind::BOOL:
        return value == Value(judged.get_bool().value());
    case Kind::NULL_VALUE:
        return value == Value();
    }
    return false;
}

/// Whether there are as many digits in a row as in an integer beyond 64 bits.
inline bool hasBigInteger(std::string_view text) {
    std::size_t digits = 0;
    return std::ranges::any_of(text, [&](char character) {
        digits = character >= '0' && character <= '9' ? digits + 1 : 0;
        return digits == 19;
    });
}

/// What the three libraries make of a text.
struct Judgement {
    bool accepted = false;
    std::wstring error;
    /// nlohmann takes a NUL character for the end of the text.
    bool nlohmannCanJudge = true;
    bool nlohmannAccepted = false;
    /// simdjson has no integers beyond 64 bits, so that it has nothing to say about such a text.
    bool simdjsonCanJudge = true;
    bool simdjsonAccepted = false;
    /// Whether the contents agree, of those that accepted the text.
    bool isSame = true;

    /// A text that only this library refuses, on purpose: the others read a name twice, deeper
    /// nesting, a byte order mark, and take a number too small for a double for zero.
    [[nodiscard]] bool isRefusedOnPurpose() const {
        return !accepted && (error.starts_with(L"duplicate member \"") ||
                             error.find(L"nested deeper than 512 levels") != std::wstring::npos ||
                             error.find(L"byte order mark") != std::wstring::npos ||
                             error.find(L"outside the range of a double") != std::wstring::npos);
    }

    [[nodiscard]] bool isUnanimous() const {
        return isSame && (!nlohmannCanJudge || accepted == nlohmannAccepted) &&
               (!simdjsonCanJudge || accepted == simdjsonAccepted);
    }
};

inline Judgement judge(const std::string& text) {
    Judgement judgement;
    const auto value = Value::fromString(text);
    judgement.accepted = value.has_value();
    if (!value) {
        judgement.error = value.error();
    }

    const auto nlohmann = nlohmann::ordered_json::parse(text, nullptr, false);
    judgement.nlohmannCanJudge = text.find('\0') == std::string::npos;
    judgement.nlohmannAccepted = !nlohmann.is_discarded();
    if (value && judgement.nlohmannCanJudge && judgement.nlohmannAccepted) {
        judgement.isSame = isSame(*value, nlohmann);
    }

    simdjson::dom::parser parser;
    simdjson::dom::element root;
    const simdjson::error_code error = parser.parse(text).get(root);
    judgement.simdjsonCanJudge = error != simdjson::BIGINT_ERROR &&
                                 !(error == simdjson::NUMBER_ERROR && hasBigInteger(text));
    judgement.simdjsonAccepted = error == simdjson::SUCCESS;
    if (value && judgement.simdjsonAccepted) {
        judgement.isSame = judgement.isSame && isSame(*value, root);
    }
    return judgement;
}

} // namespace corvane::workbench::json::test
