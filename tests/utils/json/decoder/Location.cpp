#include <corvane/utils/json/decoder/Location.hpp>

#include "utils/json/decoder/ParsedText.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using corvane::tests::ParsedText;
using corvane::utils::json::decoder::Location;
using corvane::utils::json::decoder::Value;

TEST(JsonDecoderLocation, IsUnknownByDefault) {
    constexpr Location location;
    EXPECT_FALSE(location);
    EXPECT_EQ(location.line(), 0U);
    EXPECT_EQ(location.column(), 0U);
}

TEST(JsonDecoderLocation, HoldsLineAndColumn) {
    constexpr Location location(12, 5);
    EXPECT_TRUE(location);
    EXPECT_EQ(location.line(), 12U);
    EXPECT_EQ(location.column(), 5U);
    EXPECT_EQ(location, Location(12, 5));
    EXPECT_NE(location, Location(12, 6));
    EXPECT_NE(location, Location(13, 5));
}

TEST(JsonDecoderLocation, CountsColumnsInBytes) {
    ParsedText text("[\"\xC3\xA4\xC3\xB6\", 1]");
    auto array = text.root().asArray();
    auto element = array.begin();
    ++element;
    EXPECT_EQ((*element).location(), Location(1, 10));
}

/// The places of all values, depth first.
void collect(const Value& value, std::vector<Location>& to) {
    to.push_back(value.location());
    if (value.isArray()) {
        auto array = value.asArray();
        for (const Value& element : array) {
            collect(element, to);
        }
    } else if (value.isObject()) {
        auto object = value.asObject();
        for (const auto [name, member] : object) {
            to.push_back(name.location());
            collect(member, to);
        }
    }
}

TEST(JsonDecoderLocation, IsExactForContainersBehindEveryKindOfToken) {
    ParsedText text("[[1],\"[{\",[11],\"\\\"[\\\\\",[22],-1.5e3,[34],true,[44],null,[54],{},[62],"
                    "[[],[72]],{\"[\":[82],\"\\n[\":[94]}]");
    int arrays = 0;
    const auto check = [&](const auto& self, const Value& value) -> void {
        if (value.isArray()) {
            auto array = value.asArray();
            for (const Value& element : array) {
                if (element.isNumber() && array.elementCount() == 1) {
                    // "[" stands one column in front of the number.
                    EXPECT_EQ(value.location().column() + 1, element.location().column());
                    ++arrays;
                }
                self(self, element);
            }
        } else if (value.isObject()) {
            auto object = value.asObject();
            for (const auto [name, member] : object) {
                self(self, member);
            }
        }
    };
    check(check, text.root());
    EXPECT_EQ(arrays, 10);
}

TEST(JsonDecoderLocation, IsExactForEveryKindOfToken) {
    ParsedText text("{\n"
                    "  \"a\": [1, -2.5e1, \"x\"],\n"
                    "  \"\\u0062\\\"\": {\"c\" : null},\r\n"
                    "\t\"d\"\n"
                    ":\n"
                    "true, \"e\":[[],{},\"\\\\\", false\n"
                    "]}\n");
    std::vector<Location> places;
    collect(text.root(), places);
    EXPECT_EQ(places, (std::vector<Location>{
                          {1, 1}, // the object
                          {2, 3},
                          {2, 8},
                          {2, 9},
                          {2, 12},
                          {2, 20}, // "a"
                          {3, 3},
                          {3, 15},
                          {3, 16},
                          {3, 22}, // "b\""
                          {4, 2},
                          {6, 1}, // "d"
                          {6, 7},
                          {6, 11},
                          {6, 12},
                          {6, 15},
                          {6, 18},
                          {6, 24}, // "e"
                      }));
}

TEST(JsonDecoderLocation, MayBeAskedForInAnyOrder) {
    ParsedText text("[\n1,\n2,\n3]");
    auto array = text.root().asArray();
    auto element = array.begin();
    ++element;
    ++element;
    EXPECT_EQ((*element).location(), Location(4, 1));
    EXPECT_EQ(text.root().location(), Location(1, 1));
    EXPECT_EQ((*element).location(), Location(4, 1));
}

TEST(JsonDecoderLocation, OfEveryValueOfALongTextIsFoundQuickly) {
    std::string source = "[";
    for (int line = 0; line != 20000; ++line) {
        source += "1,\n";
    }
    source += "1]";
    ParsedText text(source);
    auto array = text.root().asArray();
    std::uint64_t line = 0;
    for (const Value& value : array) {
        ++line;
        ASSERT_EQ(value.location(), Location(line, line == 1 ? 2U : 1U));
    }
    EXPECT_EQ(line, 20001U);
}

} // namespace
