// The texts and places of syntax errors.
#include "utils/json/decoder/ParsedText.hpp"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

using corvane::tests::decoderError;
using corvane::tests::ParsedText;
using corvane::tests::syntaxError;

TEST(JsonSyntaxError, IsARuntimeErrorWithALocation) {
    try {
        const ParsedText text("[1,\n2,\nx]");
        ADD_FAILURE() << "accepted";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "JSON syntax error (line 3): unexpected character 'x'");
        const auto* const located =
            dynamic_cast<const corvane::utils::json::decoder::Exception*>(&error);
        ASSERT_NE(located, nullptr);
        EXPECT_EQ(located->location(), corvane::utils::json::decoder::Location(3, 1));
        EXPECT_STREQ(located->message(), error.what());
    }
}

TEST(JsonSyntaxError, NamesTheCharacterThatDoesNotBelong) {
    EXPECT_EQ(syntaxError("[1;2]"), "1:3 JSON syntax error (line 1): unexpected character ';'");
    EXPECT_EQ(syntaxError("{\"a\" 1}"), "1:6 JSON syntax error (line 1): unexpected character '1'");
    EXPECT_EQ(syntaxError("[1,]"), "1:4 JSON syntax error (line 1): unexpected character ']'");
    EXPECT_EQ(syntaxError("['a']"), "1:2 JSON syntax error (line 1): unexpected character \"'\"");
    EXPECT_EQ(syntaxError("[\xC3\xBC]"),
              "1:2 JSON syntax error (line 1): unexpected character '\xC3\xBC'");
    EXPECT_EQ(syntaxError("[01]"), "1:3 JSON syntax error (line 1): unexpected character '1'");
    EXPECT_EQ(syntaxError("\"\\a\""), "1:3 JSON syntax error (line 1): unexpected character 'a'");
}

TEST(JsonSyntaxError, NamesAControlCharacterByItsCode) {
    EXPECT_EQ(syntaxError("[\"a\nb\"]"),
              "1:4 JSON syntax error (line 1): unexpected control character U+000A");
    EXPECT_EQ(syntaxError(std::string("[\0]", 3)),
              "1:2 JSON syntax error (line 1): unexpected control character U+0000");
    EXPECT_EQ(syntaxError("[\x7F]"),
              "1:2 JSON syntax error (line 1): unexpected control character U+007F");
}

TEST(JsonSyntaxError, NamesACharacterThatIsNotSeenOrTurnsTheTextRoundByItsCode) {
    struct Case {
        const char* character;
        const char* code;
    };
    for (const Case& expected : {
             Case{"\xC2\x80", "U+0080"},
             {"\xC2\x9B", "U+009B"}, // begins a command of a terminal
             {"\xC2\x9F", "U+009F"},
             {"\xC2\xAD", "U+00AD"},
             {"\xD8\x9C", "U+061C"},
             {"\xE2\x80\x8B", "U+200B"},
             {"\xE2\x80\x8F", "U+200F"},
             {"\xE2\x80\xA8", "U+2028"},
             {"\xE2\x80\xAA", "U+202A"},
             {"\xE2\x80\xAE", "U+202E"},
             {"\xE2\x81\xA6", "U+2066"},
             {"\xE2\x81\xA9", "U+2069"},
             {"\xEF\xBB\xBF", "U+FEFF"},
             {"\xF3\xA0\x80\xA0", "U+E0020"},
         }) {
        EXPECT_EQ(syntaxError("[" + std::string(expected.character) + "]"),
                  "1:2 JSON syntax error (line 1): unexpected control character " +
                      std::string(expected.code));
    }
}

TEST(JsonSyntaxError, ShowsTheCharactersBesideThoseAsTheyAre) {
    for (const std::string character :
         {"\xC2\xA0", "\xC2\xA1", "\xC2\xAE", "\xD8\x9D", "\xE2\x80\x8A", "\xE2\x80\x90",
          "\xE2\x80\xAF", "\xE2\x81\x9F", "\xE2\x81\xB0", "\xEF\xBC\x81", "\xF0\x9F\x92\xA7"}) {
        EXPECT_EQ(syntaxError("[" + character + "]"),
                  "1:2 JSON syntax error (line 1): unexpected character '" + character + "'");
    }
}

TEST(JsonSyntaxError, NamesAByteThatIsNotUtf8) {
    EXPECT_EQ(syntaxError("[\n\"ab\xFF\"]"),
              "2:4 JSON syntax error (line 2): malformed UTF-8 at byte 0xFF");
    EXPECT_EQ(syntaxError("[\xC3]"),
              "1:2 JSON syntax error (line 1): malformed UTF-8 at byte 0xC3");
}

TEST(JsonSyntaxError, SaysThatTheTextEndsTooSoon) {
    EXPECT_EQ(syntaxError("[1,\n"), "2:1 JSON syntax error (line 2): unexpected end of the text");
    EXPECT_EQ(syntaxError("{\"a\""), "1:5 JSON syntax error (line 1): unexpected end of the text");
    EXPECT_EQ(syntaxError("\"abc"), "1:5 JSON syntax error (line 1): unexpected end of the text");
    EXPECT_EQ(syntaxError("\"a\\u00"),
              "1:7 JSON syntax error (line 1): unexpected end of the text");
    EXPECT_EQ(syntaxError("tru"), "1:4 JSON syntax error (line 1): unexpected end of the text");
    EXPECT_EQ(syntaxError("-"), "1:2 JSON syntax error (line 1): unexpected end of the text");
    EXPECT_EQ(syntaxError("1e+"), "1:4 JSON syntax error (line 1): unexpected end of the text");
}

TEST(JsonSyntaxError, SaysThatThereIsNothing) {
    EXPECT_EQ(syntaxError(""), "1:1 JSON syntax error (line 1): the text is empty");
    EXPECT_EQ(syntaxError(" \n\t\r\n "),
              "3:2 JSON syntax error (line 3): the text holds nothing but whitespace");
}

TEST(JsonSyntaxError, NamesAByteOrderMark) {
    EXPECT_EQ(syntaxError("\xEF\xBB\xBF{}"),
              "1:1 JSON syntax error (line 1): the text starts with a byte order mark, which JSON "
              "does not allow");
}

TEST(JsonSyntaxError, ExplainsBrokenEscapes) {
    const std::string digits =
        "JSON syntax error (line 1): expected four hexadecimal digits after \\u";
    EXPECT_EQ(syntaxError("[\"\\u12x4 and more text\"]"), "1:3 " + digits);
    EXPECT_EQ(syntaxError("[\"\\u12x4\"]"), "1:3 " + digits);
    EXPECT_EQ(syntaxError("[\"\\u\"]"), "1:3 " + digits);
    EXPECT_EQ(syntaxError("[\"ab\\\\\\uD83D\\u00\"]"), "1:13 " + digits);
}

TEST(JsonSyntaxError, NamesASurrogateWithoutItsOtherHalf) {
    const std::string half = "JSON syntax error (line 1): half of a surrogate pair stands alone";
    EXPECT_EQ(syntaxError("[\"\\uD83D and more text\"]"), "1:3 " + half);
    EXPECT_EQ(syntaxError("[\"\\uD83D\"]"), "1:3 " + half);
    EXPECT_EQ(syntaxError("[\"\\uD83D\\n and more text\"]"), "1:3 " + half);
    EXPECT_EQ(syntaxError("[\"\\uD83D\\u0041 and more text\"]"), "1:3 " + half);
    EXPECT_EQ(syntaxError("[\"\\uDE00 and more text\"]"), "1:3 " + half);
    EXPECT_EQ(syntaxError("[\"\\uDE00\"]"), "1:3 " + half);
}

TEST(JsonSyntaxError, NamesAnEscapeThatDoesNotExist) {
    EXPECT_EQ(syntaxError("\"a\\x41\""),
              "1:4 JSON syntax error (line 1): unexpected character 'x'");
}

TEST(JsonSyntaxError, SaysThatANumberIsTooLarge) {
    EXPECT_EQ(syntaxError("[1,\n 1e400]"),
              "2:2 JSON syntax error (line 2): the number is outside the range of a double");
    EXPECT_EQ(syntaxError("-1e999999999999"),
              "1:1 JSON syntax error (line 1): the number is outside the range of a double");
    EXPECT_EQ(syntaxError(std::string(400, '9')),
              "1:1 JSON syntax error (line 1): the number is outside the range of a double");
    EXPECT_EQ(syntaxError("1e-400"),
              "1:1 JSON syntax error (line 1): the number is outside the range of a double");
}

TEST(JsonSyntaxError, SaysThatTextFollowsTheValueOnlyWhenTheDocumentIsFinished) {
    const ParsedText text("{}\n  x");
    EXPECT_EQ(decoderError([&] { text.finish(); }),
              "2:3 JSON syntax error (line 2): unexpected text after the end of the value");
    EXPECT_EQ(syntaxError("1 2"),
              "1:3 JSON syntax error (line 1): unexpected text after the end of the value");
    EXPECT_EQ(syntaxError("[]]"),
              "1:3 JSON syntax error (line 1): unexpected text after the end of the value");
    EXPECT_EQ(syntaxError("{} \n"), "nothing thrown");
}

TEST(JsonSyntaxError, CountsLinesByLineFeedsAlone) {
    EXPECT_EQ(syntaxError("[\r\n\r\nx]"),
              "3:1 JSON syntax error (line 3): unexpected character 'x'");
    EXPECT_EQ(syntaxError("[\r\rx]"), "1:4 JSON syntax error (line 1): unexpected character 'x'");
    std::string text = "[";
    for (int line = 0; line != 100000; ++line) {
        text += "1,\n";
    }
    EXPECT_EQ(syntaxError(text + "x"),
              "100001:1 JSON syntax error (line 100001): unexpected character 'x'");
}

} // namespace
