#include <corvane/utils/json/decoder/String.hpp>

#include "utils/json/decoder/ParsedText.hpp"

#include <gtest/gtest.h>

#include <ranges>
#include <string>
#include <string_view>

namespace {

using corvane::tests::ParsedText;
using corvane::utils::io::MemoryInputStream;
using corvane::utils::json::decoder::Document;
using corvane::utils::json::decoder::String;

static_assert(std::ranges::random_access_range<String>);

TEST(JsonDecoderString, IsARangeOfItsCharacters) {
    ParsedText text(R"("a\u00e9\n")");
    const String string = text.root().asString();
    EXPECT_EQ(string.view(), "a\xC3\xA9\n");
    EXPECT_EQ(string.size(), 4U);
    EXPECT_FALSE(string.empty());
    EXPECT_EQ(std::string(string.begin(), string.end()), "a\xC3\xA9\n");
}

TEST(JsonDecoderString, MayBeEmpty) {
    ParsedText text("\"\"");
    EXPECT_TRUE(text.root().asString().empty());
    EXPECT_EQ(text.root().asString().view(), "");
}

TEST(JsonDecoderString, KeepsNullCharacters) {
    ParsedText text(R"("a\u0000b")");
    EXPECT_EQ(text.root().asString().view(), std::string_view("a\0b", 3));
}

TEST(JsonDecoderString, WithoutEscapesIsAViewOfTheText) {
    const std::string text = "[\"a long text that is not copied\"]";
    MemoryInputStream<char> stream(text);
    Document document(stream);
    auto array = document.root().asArray();
    EXPECT_EQ((*array.begin()).asString().view().data(), text.data() + 2);
}

TEST(JsonDecoderString, OfManyWithEscapesKeepsEachApart) {
    ParsedText text(R"(["a\n", "plain", "\tb", "", "\u0041\\", "x\"y\"z"])");
    std::string joined;
    auto array = text.root().asArray();
    for (const auto& value : array) {
        joined.append(value.asString().view()).append("|");
    }
    EXPECT_EQ(joined, "a\n|plain|\tb||A\\|x\"y\"z|");
}

} // namespace
