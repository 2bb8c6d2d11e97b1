#pragma once

#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Document.hpp>
#include <corvane/utils/json/decoder/Exception.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/numeric/format.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace corvane::tests {

/// A JSON text together with the document that was made of it.
class ParsedText {
public:
    explicit ParsedText(std::string text)
        : text_(std::move(text)), stream_(text_), document_(stream_) {}
    ParsedText(const ParsedText&) = delete;
    ParsedText& operator=(const ParsedText&) = delete;

    [[nodiscard]] utils::json::decoder::Value& root() { return document_.root(); }
    void finish() const { document_.finish(); }

private:
    std::string text_;
    utils::io::MemoryInputStream<char> stream_;
    utils::json::decoder::Document document_;
};

/// "line:column text" of what the operation throws, or "nothing thrown".
template <class F>
[[nodiscard]] std::string decoderError(F&& operation) {
    try {
        std::forward<F>(operation)();
    } catch (const utils::json::decoder::Exception& error) {
        return std::to_string(error.location().line()) + ':' +
               std::to_string(error.location().column()) + ' ' + error.message();
    }
    return "nothing thrown";
}

/// The same for reading a text to its end.
[[nodiscard]] inline std::string syntaxError(std::string_view text) {
    return decoderError([text] { ParsedText(std::string(text)).finish(); });
}

/// A value in a notation of its own that shows kinds: i5, u5, d5, "text", {"a":…}, […].
inline void describe(const utils::json::decoder::Value& value, std::string& to);

[[nodiscard]] inline std::string described(const utils::json::decoder::Value& value) {
    std::string text;
    describe(value, text);
    return text;
}
[[nodiscard]] inline std::string described(std::string_view text) {
    return described(ParsedText(std::string(text)).root());
}

inline void describe(const utils::json::decoder::Value& value, std::string& to) {
    if (value.isObject()) {
        auto object = value.asObject();
        to += '{';
        for (const auto [name, member] : object) {
            to.append(to.back() == '{' ? "" : ",").append(name.text()).append(":");
            describe(member, to);
        }
        to += '}';
    } else if (value.isArray()) {
        auto array = value.asArray();
        to += '[';
        for (const auto& element : array) {
            to.append(to.back() == '[' ? "" : ",");
            describe(element, to);
        }
        to += ']';
    } else if (value.isString()) {
        to.append("\"").append(value.asString().view()).append("\"");
    } else if (value.isNumber()) {
        const auto number = value.asNumber();
        if (const auto* const integer = std::get_if<std::int64_t>(&number)) {
            to += 'i' + std::to_string(*integer);
        } else if (const auto* const natural = std::get_if<std::uint64_t>(&number)) {
            to += 'u' + std::to_string(*natural);
        } else {
            to += 'd';
            to += utils::numeric::format(std::get<double>(number));
        }
    } else if (value.isBool()) {
        to += value.asBool() ? "true" : "false";
    } else {
        EXPECT_TRUE(value.isNull());
        to += "null";
    }
}

} // namespace corvane::tests
