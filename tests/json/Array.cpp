#include <corvane/workbench/json/Array.hpp>

#include "decoding.hpp"
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/workbench/json/Value.hpp>

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>

namespace corvane::workbench::json {
namespace {

namespace decoder = utils::json::decoder;
using Format = utils::json::encoder::Document::Format;

static_assert(std::is_nothrow_move_constructible_v<Array>);
static_assert(std::is_nothrow_move_assignable_v<Array>);

std::string compact(const Array& array) {
    return array.toString(Format::Compact);
}

TEST(JsonArray, IsEmptyByDefault) {
    EXPECT_TRUE(Array().empty());
    EXPECT_EQ(Array().size(), 0U);
    EXPECT_EQ(Array(), Array::fromString("[]"));
}

TEST(JsonArray, KeepsItsElementsInOrder) {
    const Array array = Array::fromString("[3,\"a\",[],null,3]").value();
    EXPECT_EQ(array.size(), 5U);
    EXPECT_EQ(array[1], Value("a"));
    EXPECT_EQ(compact(array), "[3,\"a\",[],null,3]");
    EXPECT_EQ(array.toString(Format::Indented), "[\n  3,\n  \"a\",\n  [],\n  null,\n  3\n]\n");
}

TEST(JsonArray, ComparesLengthAndElements) {
    const Array array = Array::fromString("[1,2]").value();
    EXPECT_EQ(array, Array::fromString("[1, 2]"));
    EXPECT_NE(array, Array::fromString("[2,1]"));
    EXPECT_NE(array, Array::fromString("[1]"));
    EXPECT_NE(array, Array::fromString("[1,2,3]"));
    EXPECT_NE(array, Array::fromString("[1,2.0]"));
}

TEST(JsonArray, IsMadeFromAnArrayTextOnly) {
    EXPECT_EQ(Array::fromString("{}").error(), L"expected an array, found an object");
    EXPECT_EQ(Array::fromString("\"a\"").error(), L"expected an array, found a string");
    EXPECT_EQ(Array::fromString("[] 1").error(),
              L"Error on line 1: unexpected text after the end of the value");
}

TEST(JsonArray, AppendsAndErasesElements) {
    Array array;
    array.reserve(3);
    EXPECT_EQ(array.append(1), Value(1));
    array.append("two");
    array.append(Array());
    array[0] = true;
    EXPECT_EQ(compact(array), "[true,\"two\",[]]");
    const auto behind = array.erase(array.begin() + 1);
    EXPECT_EQ(*behind, Value(Array()));
    EXPECT_EQ(compact(array), "[true,[]]");
    array.clear();
    EXPECT_TRUE(array.empty());
}

TEST(JsonArray, GivesItsElementsForChange) {
    Array array = Array::fromString("[1,2]").value();
    for (Value& element : array) {
        element = element.get<std::int64_t>() * 10;
    }
    EXPECT_EQ(compact(array), "[10,20]");
}

TEST(JsonArray, MayBeAssignedAnArrayNestedInItself) {
    Array array = Array::fromString("[[1,\"some longer text\"]]").value();
    Array copied = array;
    copied = std::as_const(copied)[0].get<Array>();
    EXPECT_EQ(compact(copied), "[1,\"some longer text\"]");
    array = std::move(array[0].get<Array>());
    EXPECT_EQ(compact(array), "[1,\"some longer text\"]");
}

TEST(JsonArray, AMovedFromArrayIsEmpty) {
    Array array = Array::fromString("[1]").value();
    const Array moved = std::move(array);
    EXPECT_TRUE(array.empty()); // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(compact(moved), "[1]");
}

TEST(JsonArray, RefusesDuplicatesInItsObjectsWhateverTheOptions) {
    EXPECT_EQ(Array::fromString(R"([{"b":1,"b":2}])", {.allowDuplicateMembers = true}).error(),
              L"duplicate member \"b\" in JSON object");
    test::withRoot("[0,\n {\"b\":1,\"b\":2}]", [](decoder::Value& root) {
        EXPECT_EQ(test::locatedErrorOf<std::runtime_error>([&] { Array().decode(root); }),
                  (test::LocatedError{"duplicate member \"b\" in JSON object", 2, 9}));
    });
}

TEST(JsonArray, DecodingReplacesTheElements) {
    Array array = Array::fromString("[1]").value();
    test::withRoot("[2]", [&](decoder::Value& root) { array.decode(root); });
    EXPECT_EQ(compact(array), "[2]");
    test::withRoot("[3]", [&](decoder::Value& root) {
        decoder::Array source = root.asArray();
        array.decode(source);
    });
    EXPECT_EQ(compact(array), "[3]");
}

TEST(JsonArray, AFailedDecodingLeavesTheElementsAlone) {
    Array array = Array::fromString("[1]").value();
    test::withRoot(R"([2,{"a":1,"a":2}])", [&](decoder::Value& root) {
        EXPECT_THROW(array.decode(root), std::runtime_error);
    });
    EXPECT_EQ(compact(array), "[1]");
}

} // namespace
} // namespace corvane::workbench::json
