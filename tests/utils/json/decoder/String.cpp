#include <corvane/utils/json/decoder/String.hpp>

#include "utils/json/decoder/ParsedText.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <ranges>
#include <string>
#include <string_view>

namespace {

using corvane::tests::ParsedText;
using corvane::utils::io::MemoryInputStream;
using corvane::utils::json::decoder::Document;
using corvane::utils::json::decoder::Location;
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

TEST(JsonDecoderString, IsReadWhereverItsSpecialBytesStand) {
    struct Piece {
        std::string_view written;
        std::string_view read;
    };
    for (const Piece& piece : {Piece{"\\n", "\n"},
                               {R"(\")", "\""},
                               {R"(\u20AC)", "\xE2\x82\xAC"},
                               {"\x7F", "\x7F"},
                               {"\xC3\xA9", "\xC3\xA9"},
                               {"\xE2\x82\xAC", "\xE2\x82\xAC"},
                               {"\xE0\xA0\x80", "\xE0\xA0\x80"},
                               {"\xED\x9F\xBF", "\xED\x9F\xBF"},
                               {"\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"}}) {
        for (std::size_t before = 0; before != 20; ++before) {
            for (std::size_t behind = 0; behind != 20; ++behind) {
                const std::string first(before, 'a');
                const std::string last(behind, 'b');
                ParsedText text('"' + first + std::string(piece.written) + last + '"');
                ASSERT_EQ(text.root().asString().view(), first + std::string(piece.read) + last);
            }
        }
    }
}

TEST(JsonDecoderString, LongerThanATokenCanTellIsReadWhole) {
    std::string text(std::size_t{1} << 28U, 'x');
    text.back() = 'y';
    text.insert(0, "[1,\"").append("\",2]");
    MemoryInputStream<char> stream(text);
    Document document(stream);
    auto array = document.root().asArray();
    auto element = array.begin();
    ++element;
    EXPECT_EQ((*element).asString().size(), std::size_t{1} << 28U);
    EXPECT_EQ((*element).asString().view().back(), 'y');
    EXPECT_EQ((*element).location(), Location(1, 4));
    ++element;
    EXPECT_EQ((*element).asInt64(), 2);
}

} // namespace
