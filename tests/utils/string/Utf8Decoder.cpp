#include <corvane/utils/string/detail/Utf8Decoder.hpp>

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using corvane::utils::string::detail::Utf8Decoder;

std::u32string decoded(std::string_view utf8) {
    std::u32string characters;
    const auto sink = [&characters](char32_t character) { characters.push_back(character); };
    Utf8Decoder decoder;
    for (const char byte : utf8) {
        decoder.feed(byte, sink);
    }
    decoder.finish(sink);
    return characters;
}

TEST(Utf8Decoder, DecodesTheFirstAndLastCharacterOfEachLength) {
    EXPECT_EQ(decoded(std::string_view("\0\x7F", 2)), std::u32string_view(U"\0\x7F", 2));
    EXPECT_EQ(decoded("\xC2\x80\xDF\xBF"), U"\u0080\u07FF");
    EXPECT_EQ(decoded("\xE0\xA0\x80\xEF\xBF\xBF"), U"\u0800\uFFFF");
    EXPECT_EQ(decoded("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"), U"\U00010000\U0010FFFF");
}

TEST(Utf8Decoder, DecodesTheCharactersBesideTheSurrogates) {
    EXPECT_EQ(decoded("\xED\x9F\xBF\xEE\x80\x80"), U"\uD7FF\uE000");
}

TEST(Utf8Decoder, GivesOneReplacementForEachMaximalSubpart) {
    // Truncated sequences are one subpart each.
    EXPECT_EQ(decoded("\xE2\x82"), U"\uFFFD");
    EXPECT_EQ(decoded("\xF0\x9F\x98"), U"\uFFFD");
    EXPECT_EQ(decoded("\xE2\x82\xE2\x82\xAC"), U"\uFFFD\u20AC");
    EXPECT_EQ(decoded("\xF0\x9F\x98x"), U"\uFFFDx");
    EXPECT_EQ(decoded("\xC3\xC3\xA9"), U"\uFFFD\u00E9");
}

TEST(Utf8Decoder, GivesOneReplacementForEachByteThatCanBeginNothing) {
    EXPECT_EQ(decoded("\x80\xBF"), U"\uFFFD\uFFFD");
    EXPECT_EQ(decoded("\xC0\xAF"), U"\uFFFD\uFFFD");
    EXPECT_EQ(decoded("\xC1\xBF"), U"\uFFFD\uFFFD");
    EXPECT_EQ(decoded("\xF5\x80\x80\x80"), U"\uFFFD\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(decoded("\xFE\xFF"), U"\uFFFD\uFFFD");
}

TEST(Utf8Decoder, RefusesOverlongFormsSurrogatesAndValuesAboveTheLast) {
    EXPECT_EQ(decoded("\xE0\x9F\xBF"), U"\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(decoded("\xF0\x8F\xBF\xBF"), U"\uFFFD\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(decoded("\xED\xA0\x80"), U"\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(decoded("\xED\xBF\xBF"), U"\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(decoded("\xF4\x90\x80\x80"), U"\uFFFD\uFFFD\uFFFD\uFFFD");
}

TEST(Utf8Decoder, DecodesTheStandardsExampleOfMaximalSubparts) {
    EXPECT_EQ(decoded("a\xF1\x80\x80\xE1\x80\xC2"
                      "b\x80"
                      "c\x80\xBF"
                      "d"),
              U"a\uFFFD\uFFFD\uFFFDb\uFFFDc\uFFFD\uFFFDd");
}

TEST(Utf8Decoder, IsAsNewAfterTheEnd) {
    std::u32string characters;
    const auto sink = [&characters](char32_t character) { characters.push_back(character); };
    Utf8Decoder decoder;
    decoder.feed('\xE2', sink);
    decoder.finish(sink);
    decoder.finish(sink);
    decoder.feed('x', sink);
    EXPECT_EQ(characters, U"\uFFFDx");
}

} // namespace
