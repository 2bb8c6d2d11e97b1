#include <corvane/utils/json/decoder/Array.hpp>

#include "utils/json/decoder/ParsedText.hpp"

#include <gtest/gtest.h>

#include <ranges>
#include <string>
#include <type_traits>

namespace {

using corvane::tests::described;
using corvane::tests::ParsedText;
using corvane::utils::json::decoder::Array;
using corvane::utils::json::decoder::Location;
using corvane::utils::json::decoder::Value;

static_assert(std::ranges::input_range<Array>);
static_assert(!std::is_copy_constructible_v<Array>);

std::string walked(Array& array) {
    std::string text;
    for (const Value& value : array) {
        text.append(described(value)).append(" ");
    }
    return text;
}

TEST(JsonDecoderArray, DeliversItsElementsInTheOrderOfTheText) {
    ParsedText text(R"([1,"two",[3,[4]],{"five":6},null,true])");
    auto array = text.root().asArray();
    EXPECT_EQ(array.elementCount(), 6U);
    EXPECT_EQ(walked(array), "i1 \"two\" [i3,[i4]] {five:i6} null true ");
}

TEST(JsonDecoderArray, DeliversNothingWhenItIsEmpty) {
    ParsedText text("[]");
    auto array = text.root().asArray();
    EXPECT_EQ(array.elementCount(), 0U);
    EXPECT_EQ(walked(array), "");
}

TEST(JsonDecoderArray, CountsItsOwnElementsOnly) {
    ParsedText text("[[1,2,3],{\"a\":1,\"b\":[]},[]]");
    auto array = text.root().asArray();
    EXPECT_EQ(array.elementCount(), 3U);
    auto element = array.begin();
    EXPECT_EQ((*element).asArray().elementCount(), 3U);
    ++element;
    EXPECT_EQ((*element).asObject().memberCount(), 2U);
    ++element;
    EXPECT_EQ((*element).asArray().elementCount(), 0U);
}

TEST(JsonDecoderArray, GoesOnWhereItsWalkWasLeft) {
    ParsedText text("[1,2,3]");
    auto array = text.root().asArray();
    auto element = array.begin();
    ++element;
    EXPECT_EQ(walked(array), "i2 i3 ");
    EXPECT_EQ(walked(array), "");
}

TEST(JsonDecoderArray, KnowsItsPlaceAndThatOfItsElements) {
    ParsedText text("\n [10,\n\n   \"x\\n\", true]");
    auto array = text.root().asArray();
    EXPECT_EQ(array.location(), Location(2, 2));
    auto element = array.begin();
    EXPECT_EQ((*element).location(), Location(2, 3));
    ++element;
    EXPECT_EQ((*element).location(), Location(4, 4));
    ++element;
    EXPECT_EQ((*element).location(), Location(4, 11));
    EXPECT_EQ(array.location(), Location(2, 2));
}

} // namespace
