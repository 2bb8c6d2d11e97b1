#include <corvane/workbench/json/Value.hpp>

#include "decoding.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <bitset>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace corvane::workbench::json {
namespace {

using Format = utils::json::encoder::Document::Format;

static_assert(std::is_nothrow_default_constructible_v<Value>);
static_assert(std::is_copy_constructible_v<Value> && std::is_copy_assignable_v<Value>);
static_assert(std::is_nothrow_move_constructible_v<Value>);
static_assert(std::is_nothrow_move_assignable_v<Value>);

enum Unscoped { kEnumerator };
enum class Scoped { Enumerator };

template <class T>
constexpr bool kIsTaken = std::is_constructible_v<Value, T>;
static_assert(kIsTaken<bool> && kIsTaken<float> && kIsTaken<double>);
static_assert(kIsTaken<signed char> && kIsTaken<short> && kIsTaken<long long>);
static_assert(kIsTaken<unsigned char> && kIsTaken<unsigned short> && kIsTaken<unsigned long long>);
static_assert(kIsTaken<const char*> && kIsTaken<char*> && kIsTaken<std::string_view>);
static_assert(!kIsTaken<std::vector<bool>::reference> && !kIsTaken<std::bitset<8>::reference>);
static_assert(!kIsTaken<std::atomic<bool>&> && !kIsTaken<std::true_type>);
static_assert(!kIsTaken<Unscoped> && !kIsTaken<Scoped>);
static_assert(!kIsTaken<std::nullptr_t> && !kIsTaken<void*> && !kIsTaken<const int*>);
static_assert(!kIsTaken<char> && !kIsTaken<wchar_t> && !kIsTaken<char8_t>);
static_assert(!kIsTaken<char16_t> && !kIsTaken<char32_t>);
static_assert(!kIsTaken<const wchar_t*> && !kIsTaken<std::wstring>);
// Where it is wider than double, which it is not everywhere.
static_assert(kIsTaken<long double> == (sizeof(long double) == sizeof(double)));

static_assert(sizeof(Value) <= 2 * sizeof(std::uint64_t));
static_assert(static_cast<int>(Value::Kind::Object) == 0);
static_assert(static_cast<int>(Value::Kind::Null) == 7);

constexpr std::int64_t kLowest = std::numeric_limits<std::int64_t>::min();
constexpr std::uint64_t kHighest = std::numeric_limits<std::uint64_t>::max();

std::string compact(const Value& value) {
    return value.toString(Format::Compact);
}

TEST(JsonValue, IsNullByDefault) {
    EXPECT_EQ(Value().kind(), Value::Kind::Null);
    EXPECT_TRUE(Value().is<Value::Null>());
    EXPECT_EQ(Value(), Value(Value::Null()));
    EXPECT_TRUE(Value::Null() == Value::Null());
}

TEST(JsonValue, HoldsWhatItIsMadeFrom) {
    EXPECT_EQ(Value(Object()).kind(), Value::Kind::Object);
    EXPECT_EQ(Value(Array()).kind(), Value::Kind::Array);
    EXPECT_EQ(Value(std::string("a")).get<std::string>(), "a");
    EXPECT_EQ(Value("a").get<std::string>(), "a");
    EXPECT_EQ(Value(std::string_view("a\0b", 3)).get<std::string>(), std::string("a\0b", 3));
    EXPECT_EQ(Value(kLowest).get<std::int64_t>(), kLowest);
    EXPECT_EQ(Value(-5).get<std::int64_t>(), -5);
    EXPECT_EQ(Value(kHighest).get<std::uint64_t>(), kHighest);
    EXPECT_EQ(Value(5U).get<std::uint64_t>(), 5U);
    EXPECT_EQ(Value(1.5).get<double>(), 1.5);
    EXPECT_EQ(Value(1.5F).get<double>(), 1.5);
    EXPECT_EQ(Value(true).get<bool>(), true);
    EXPECT_EQ(Value(false).get<bool>(), false);
}

TEST(JsonValue, KnowsTheEightAlternativesInTheirOrder) {
    const auto indexOf = [](const Value& value) { return static_cast<int>(value.kind()); };
    EXPECT_EQ(indexOf(Object()), 0);
    EXPECT_EQ(indexOf(Array()), 1);
    EXPECT_EQ(indexOf("text"), 2);
    EXPECT_EQ(indexOf(std::int64_t{1}), 3);
    EXPECT_EQ(indexOf(std::uint64_t{1}), 4);
    EXPECT_EQ(indexOf(1.0), 5);
    EXPECT_EQ(indexOf(true), 6);
    EXPECT_EQ(indexOf(Value()), 7);
}

TEST(JsonValue, GivesItsContentOnlyAsTheKindItIs) {
    Value value("text");
    EXPECT_EQ(*value.getIf<std::string>(), "text");
    EXPECT_EQ(value.getIf<double>(), nullptr);
    EXPECT_EQ(std::as_const(value).getIf<Object>(), nullptr);
    EXPECT_THROW(static_cast<void>(value.get<std::int64_t>()), std::bad_variant_access);
    EXPECT_THROW(static_cast<void>(std::as_const(value).get<bool>()), std::bad_variant_access);
    value.get<std::string>() += "!";
    EXPECT_EQ(std::move(value).get<std::string>(), "text!");
}

TEST(JsonValue, VisitsItsContent) {
    const auto describe = [](const auto& content) -> std::string {
        if constexpr (std::is_same_v<std::decay_t<decltype(content)>, std::int64_t>) {
            return "signed";
        } else {
            return "other";
        }
    };
    EXPECT_EQ(Value(1).visit(describe), "signed");
    const Value constant(1U);
    EXPECT_EQ(constant.visit(describe), "other");
}

TEST(JsonValue, TheThreeKindsOfNumberAreNeverEqual) {
    EXPECT_NE(Value(std::int64_t{5}), Value(std::uint64_t{5}));
    EXPECT_NE(Value(std::int64_t{5}), Value(5.0));
    EXPECT_NE(Value(std::uint64_t{5}), Value(5.0));
    EXPECT_NE(Value(0), Value(false));
    EXPECT_EQ(Value(5), Value(std::int64_t{5}));
    EXPECT_NE(Value(5), Value(6));
    EXPECT_NE(Value(5U), Value(6U));
}

TEST(JsonValue, DoublesCompareAsUsual) {
    EXPECT_NE(Value(std::nan("")), Value(std::nan("")));
    EXPECT_EQ(Value(0.0), Value(-0.0));
    EXPECT_NE(Value(1.0), Value(1.5));
}

TEST(JsonValue, TextsBooleansAndNullsCompareByContent) {
    EXPECT_EQ(Value("a"), Value("a"));
    EXPECT_NE(Value("a"), Value("A"));
    EXPECT_NE(Value("\xc3\xa4"), Value("a\xcc\x88"));
    EXPECT_EQ(Value(true), Value(true));
    EXPECT_NE(Value(true), Value(false));
    EXPECT_NE(Value(), Value(false));
}

TEST(JsonValue, ReadsEveryKindOfText) {
    EXPECT_EQ(Value::fromString("\"a\\u00e4\\n\""), Value("a\xc3\xa4\n"));
    EXPECT_EQ(Value::fromString("-9223372036854775808"), Value(kLowest));
    EXPECT_EQ(Value::fromString("5"), Value(std::int64_t{5}));
    EXPECT_EQ(Value::fromString("18446744073709551615"), Value(kHighest));
    EXPECT_EQ(Value::fromString("18446744073709551616"), Value(18446744073709551616.0));
    EXPECT_EQ(Value::fromString("5.0"), Value(5.0));
    EXPECT_EQ(Value::fromString("1e3"), Value(1000.0));
    EXPECT_EQ(Value::fromString("true"), Value(true));
    EXPECT_EQ(Value::fromString("false"), Value(false));
    EXPECT_EQ(Value::fromString(" null "), Value());
    EXPECT_EQ(Value::fromString("{}"), Value(Object()));
    EXPECT_EQ(Value::fromString("[]"), Value(Array()));
}

TEST(JsonValue, AReadNumberAndADoubleStayDistinctWhenWritten) {
    const Value read = Value::fromString("5").value();
    const Value made(5.0);
    EXPECT_NE(read, made);
    EXPECT_EQ(compact(read), "5");
    EXPECT_EQ(compact(made), "5.0");
    EXPECT_EQ(Value::fromString(compact(read)), read);
    EXPECT_EQ(Value::fromString(compact(made)), made);
}

TEST(JsonValue, AWholeDoubleIsWrittenSoThatItReadsBackAsADouble) {
    EXPECT_EQ(compact(0.0), "0.0");
    EXPECT_EQ(compact(-0.0), "-0.0");
    EXPECT_EQ(compact(-250.0), "-250.0");
    EXPECT_EQ(compact(1e15), "1e+15");
    EXPECT_EQ(compact(1.25), "1.25");
    EXPECT_EQ(compact(1e300), "1e+300");
    EXPECT_EQ(compact(5e-324), "5e-324");
    EXPECT_EQ(compact(std::numeric_limits<double>::max()), "1.7976931348623157e+308");
    EXPECT_EQ(compact(123456789012345680.0), "123456789012345680.0");
    // 20 and 21 digits with their sign: ".0" still fits into 24 characters.
    EXPECT_EQ(compact(-12345678901234567000.0), "-12345678901234567168.0");
    EXPECT_EQ(compact(-123456789012345680000.0), "-123456789012345683968.0");
}

TEST(JsonValue, ADoubleTooLongForItsFractionIsWrittenInScientificForm) {
    EXPECT_EQ(compact(-1234567890123456800000.0), "-1.2345678901234568e+21");
    EXPECT_EQ(compact(1234567890123456800000.0), "1234567890123456774144.0");
}

TEST(JsonValue, ADoubleThatJsonCannotHoldIsWrittenAsNull) {
    EXPECT_EQ(compact(std::numeric_limits<double>::infinity()), "null");
    EXPECT_EQ(compact(-std::numeric_limits<double>::infinity()), "null");
    EXPECT_EQ(compact(std::nan("")), "null");
}

TEST(JsonValue, WritesEveryKind) {
    EXPECT_EQ(compact(kLowest), "-9223372036854775808");
    EXPECT_EQ(compact(kHighest), "18446744073709551615");
    EXPECT_EQ(compact("a\"b\n"), "\"a\\\"b\\n\"");
    EXPECT_EQ(compact(true), "true");
    EXPECT_EQ(compact(false), "false");
    EXPECT_EQ(compact(Value()), "null");
    EXPECT_EQ(compact(Object()), "{}");
    EXPECT_EQ(compact(Array()), "[]");
}

TEST(JsonValue, WritesNestedValuesCompactOrIndented) {
    const Value value = Value::fromString(R"({"a":[1,2.5,{"b":null}],"c":{}})").value();
    EXPECT_EQ(compact(value), R"({"a":[1,2.5,{"b":null}],"c":{}})");
    EXPECT_EQ(value.toString(Format::Indented), R"({
  "a": [
    1,
    2.5,
    {
      "b": null
    }
  ],
  "c": {}
}
)");
}

TEST(JsonValue, ASyntaxErrorIsAMessageWithItsLine) {
    EXPECT_EQ(Value::fromString("{\n  \"a\": 1,\n  oops\n}").error(),
              L"Error on line 3: unexpected character 'o'");
    EXPECT_EQ(Value::fromString("").error(), L"Error on line 1: the text is empty");
    EXPECT_EQ(Value::fromString(" ").error(),
              L"Error on line 1: the text holds nothing but whitespace");
}

TEST(JsonValue, TextBehindTheValueIsAnError) {
    EXPECT_EQ(Value::fromString("1\n2").error(),
              L"Error on line 2: unexpected text after the end of the value");
}

TEST(JsonValue, OptionsReachOnlyTheOutermostObject) {
    constexpr DecodingOptions tolerant{.allowDuplicateMembers = true};
    EXPECT_EQ(Value::fromString(R"({"a":1,"a":2})", tolerant), Value::fromString(R"({"a":2})"));
    EXPECT_EQ(Value::fromString(R"([{"a":1,"a":2}])", tolerant).error(),
              L"duplicate member \"a\" in JSON object");
}

TEST(JsonValue, AFailedDecodingLeavesTheContentAlone) {
    Value value("before");
    test::withRoot(R"([1,{"a":1,"a":2}])", [&](utils::json::decoder::Value& root) {
        EXPECT_THROW(value.decode(root), std::runtime_error);
    });
    EXPECT_EQ(value, Value("before"));
}

TEST(JsonValue, DecodingReplacesTheContent) {
    Value value("before");
    test::withRoot("[1]", [&](utils::json::decoder::Value& root) { value.decode(root); });
    EXPECT_EQ(compact(value), "[1]");
}

TEST(JsonValue, MayBeAssignedAValueNestedInItself) {
    const Value original = Value::fromString(R"({"a":[1,{"b":"some longer text"}]})").value();
    Value copied = original;
    copied = *std::as_const(copied).get<Object>().find("a");
    EXPECT_EQ(compact(copied), R"([1,{"b":"some longer text"}])");
    copied = copied.get<Array>()[0];
    EXPECT_EQ(compact(copied), "1");

    Value moved = original;
    moved = std::move(*moved.get<Object>().find("a"));
    EXPECT_EQ(compact(moved), R"([1,{"b":"some longer text"}])");
    moved = std::move(moved.get<Array>()[1]);
    EXPECT_EQ(compact(moved), R"({"b":"some longer text"})");
}

TEST(JsonValue, AMovedFromValueIsNull) {
    for (const char* const text : {"{\"a\":1}", "[1]", "\"text\"", "1", "1.5", "true"}) {
        Value value = Value::fromString(text).value();
        const Value moved = std::move(value);
        EXPECT_TRUE(value.is<Value::Null>()) << text; // NOLINT(bugprone-use-after-move)
        EXPECT_EQ(moved, Value::fromString(text));
    }
}

TEST(JsonValue, MayBeAssignedToItself) {
    Value value("some longer text that is on the heap");
    const Value& same = value;
    value = same;
    EXPECT_EQ(value, Value("some longer text that is on the heap"));
}

TEST(JsonValue, CopiesAreIndependent) {
    Value value = Value::fromString(R"({"a":[1]})").value();
    const Value copy = value;
    value.get<Object>().find("a")->get<Array>().append(2);
    EXPECT_EQ(compact(value), R"({"a":[1,2]})");
    EXPECT_EQ(compact(copy), R"({"a":[1]})");
}

} // namespace
} // namespace corvane::workbench::json
