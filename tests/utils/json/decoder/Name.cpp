#include <corvane/utils/json/decoder/Name.hpp>

#include "utils/json/decoder/ParsedText.hpp"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using corvane::tests::ParsedText;
using corvane::utils::json::decoder::Location;
using corvane::utils::json::decoder::Name;

TEST(JsonDecoderName, HasTheTextAndPlaceOfItsMember) {
    ParsedText text("{ \"a\\u0062\" : 1 }");
    auto object = text.root().asObject();
    const Name name = (*object.begin()).name;
    EXPECT_EQ(name.text(), "ab");
    const std::string_view converted = name;
    EXPECT_EQ(converted, "ab");
    EXPECT_EQ(name.location(), Location(1, 3));
}

TEST(JsonDecoderName, OutlivesTheStepToTheNextMember) {
    ParsedText text(R"({"a":1,"b":2})");
    auto object = text.root().asObject();
    auto member = object.begin();
    const Name name = (*member).name;
    ++member;
    EXPECT_EQ(name.text(), "a");
    EXPECT_EQ(name.location(), Location(1, 2));
}

TEST(JsonDecoderName, MayComeFromNoDocument) {
    const Name name("speed");
    EXPECT_EQ(name.text(), "speed");
    EXPECT_FALSE(name.location());
    const Name placed("speed", Location(7, 8));
    EXPECT_EQ(placed.location(), Location(7, 8));
}

} // namespace
