// The grammar of RFC 8259, rule by rule: what each rule lets in and what it keeps out.
#include "utils/json/decoder/ParsedText.hpp"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>

namespace {

using corvane::tests::described;
using corvane::tests::syntaxError;
using namespace std::string_literals;

struct Accepted {
    std::string text;
    std::string value;
};

void expectAccepted(std::initializer_list<Accepted> cases) {
    for (const Accepted& accepted : cases) {
        const std::string error = syntaxError(accepted.text);
        EXPECT_EQ(error, "nothing thrown") << accepted.text;
        if (error == "nothing thrown") {
            EXPECT_EQ(described(accepted.text), accepted.value) << accepted.text;
        }
    }
}

void expectRejected(std::initializer_list<std::string> texts) {
    for (const std::string& text : texts) {
        EXPECT_NE(syntaxError(text).find("JSON syntax error (line "), std::string::npos) << text;
    }
}

TEST(JsonGrammar, TextIsOneValueOfAnyKind) {
    expectAccepted({
        {"{}", "{}"},
        {"[]", "[]"},
        {"\"a\"", "\"a\""},
        {"0", "i0"},
        {"true", "true"},
        {"false", "false"},
        {"null", "null"},
    });
    expectRejected({"", " ", "\n", "1 2", "[] []", "{}{}", "[],", "{};", "null null", "1,",
                    "\"a\"\"b\"", "[]x", "{}\0"s, ",", ":", "]", "}", "//", "#"});
}

TEST(JsonGrammar, WhitespaceIsSpaceTabLineFeedAndCarriageReturn) {
    expectAccepted({
        {" 1", "i1"},
        {"\t1", "i1"},
        {"\n1", "i1"},
        {"\r1", "i1"},
        {"1 ", "i1"},
        {"1\t", "i1"},
        {"1\n", "i1"},
        {"1\r\n", "i1"},
        {" \t\n\r[ \t\n\r1 \t\n\r, \t\n\r2 \t\n\r] \t\n\r", "[i1,i2]"},
        {" { \"a\" : 1 , \"b\" : 2 } ", "{a:i1,b:i2}"},
        {"[ ]", "[]"},
        {"{ }", "{}"},
    });
    expectRejected({"\v1", "\f1", "1\v", "1\f",
                    "\xC2\xA0"
                    "1",
                    "1\xC2\xA0",
                    "\xE2\x80\xA8"
                    "1",
                    "[1,\v2]", "[\f]", "\0001"s, "1\0"s, "\b1", "[1\xE3\x80\x80]"});
}

TEST(JsonGrammar, ByteOrderMarkIsNotWhitespace) {
    expectRejected(
        {"\xEF\xBB\xBF{}", "{}\xEF\xBB\xBF", "\xEF\xBB\xBF", "\xFE\xFF\0{\0}"s, "\xFF\xFE{\0}\0"s});
}

TEST(JsonGrammar, CommentsAreNotAllowed) {
    expectRejected({"/* */1", "// \n1", "1/**/", "[1/*,*/]", "[1]//", "{\"a\"/**/:1}", "#1\n1"});
}

TEST(JsonGrammar, LiteralNamesAreLowerCaseAndWhole) {
    expectAccepted({{"[true,false,null]", "[true,false,null]"}, {" null ", "null"}});
    expectRejected({"True",   "TRUE",     "False",     "NULL",       "Null",  "nul",
                    "tru",    "fals",     "t",         "f",          "n",     "nulll",
                    "truee",  "true1",    "undefined", "nil",        "None",  "yes",
                    "NaN",    "Infinity", "-Infinity", "inf",        "[tru]", "[truefalse]",
                    "{null}", "{true:1}", "nu ll",     "n\xC3\xBCll"});
}

TEST(JsonGrammar, ObjectsAreMembersBetweenBracesDividedByCommas) {
    expectAccepted({
        {"{\"a\":1}", "{a:i1}"},
        {"{\"a\":1,\"b\":2}", "{a:i1,b:i2}"},
        {"{\"a\":{\"a\":{}}}", "{a:{a:{}}}"},
        {"{\"a\":[]}", "{a:[]}"},
        {"{\"\":0}", "{:i0}"},
        {"{\"a\":1,\"a\":2}", "{a:i1,a:i2}"},
        {"{\"a\\u0062\":null}", "{ab:null}"},
    });
    expectRejected({"{",
                    "}",
                    "{\"a\"",
                    "{\"a\"}",
                    "{\"a\":",
                    "{\"a\":}",
                    "{\"a\":1",
                    "{\"a\":1,",
                    "{\"a\":1,}",
                    "{,}",
                    "{,\"a\":1}",
                    "{\"a\":1,,\"b\":2}",
                    "{\"a\" 1}",
                    "{\"a\"::1}",
                    "{\"a\",1}",
                    "{\"a\":1 \"b\":2}",
                    "{\"a\":1;\"b\":2}",
                    "{\"a\"=1}",
                    "{a:1}",
                    "{'a':1}",
                    "{1:1}",
                    "{[]:1}",
                    "{{}:1}",
                    "{null:1}",
                    "{\"a\":1]",
                    "{\"a\":1}}",
                    "{\"a\":1 2}",
                    "{:1}",
                    "{\"a\":\"b\":1}",
                    "{[}"});
}

TEST(JsonGrammar, ArraysAreValuesBetweenBracketsDividedByCommas) {
    expectAccepted({
        {"[1]", "[i1]"},
        {"[1,2,3]", "[i1,i2,i3]"},
        {"[[],[[]]]", "[[],[[]]]"},
        {"[{},[],\"\",0,true,null]", "[{},[],\"\",i0,true,null]"},
    });
    expectRejected({"[", "]", "[1", "[1,", "[1,]", "[,]", "[,1]", "[1,,2]", "[1 2]", "[1;2]",
                    "[1:2]", "[1}", "[1]]", "[[1]", "[\"a\":1]", "(1)", "[\"a\" \"b\"]", "[{]}"});
}

TEST(JsonGrammar, IntegersHaveNoLeadingZeroAndNoPlusSign) {
    expectAccepted({
        {"0", "i0"},
        {"9", "i9"},
        {"10", "i10"},
        {"-1", "i-1"},
        {"-10", "i-10"},
        {"1234567890123456", "i1234567890123456"},
        {"-0", "d-0"},
    });
    expectRejected({"00",    "01",       "-01",          "-00",  "007",  "+1",    "+0",    "--1",
                    "-",     "- 1",      "-a",           "1a",   "0x10", "0b1",   "1_000", "1 000",
                    "1'000", "\xD9\xA1", "\xEF\xBC\x91", "-\0"s, "[-]",  "[-,1]", "1-",    "1+1"});
}

TEST(JsonGrammar, FractionsHaveDigitsOnBothSidesOfThePoint) {
    expectAccepted({
        {"0.0", "d0"},
        {"0.5", "d0.5"},
        {"-0.0", "d-0"},
        {"1.50", "d1.5"},
        {"10.25", "d10.25"},
        {"1.00000000000000000000000001", "d1"},
    });
    expectRejected({"1.", ".5", "-.5", ".", "-.", "1.a", "1..2", "1.2.3", "1,5", "0.", "00.5",
                    "[1.]", "[.1]", "1.-2", "1.+2", "1 .5", "1. 5"});
}

TEST(JsonGrammar, ExponentsHaveDigitsAndPerhapsASign) {
    expectAccepted({
        {"1e3", "d1000"},
        {"1E3", "d1000"},
        {"1e+3", "d1000"},
        {"1e-3", "d0.001"},
        {"1.5e1", "d15"},
        {"0e0", "d0"},
        {"-0e+0", "d-0"},
        {"1e03", "d1000"},
        {"1e00000000000000000001", "d10"},
        {"0e999999999999999999", "d0"},
    });
    expectRejected({"1e", "1E", "1e+", "1e-", "1e+-3", "1ee3", "e3", "1e3.5", "1e 3", "1 e3",
                    "1e3e3", "1.e3", "-e3", "[1e]", "[1e+]", "1ex", "0e", "1e\xC2\xB2"});
}

TEST(JsonGrammar, StringsAreBetweenDoubleQuotes) {
    expectAccepted({
        {"\"\"", "\"\""},
        {"\"a b\"", "\"a b\""},
        {"\"'\"", "\"'\""},
        {"\"/\"", "\"/\""},
        {"\"\x7F\"", "\"\x7F\""},
        {"\"{}[],:\"", "\"{}[],:\""},
    });
    expectRejected({"\"", "\"a", "a\"", "'a'", "`a`", "\"a'", "\"a\"b\"", "a", "\"\"\"",
                    "\xE2\x80\x9C"
                    "a\xE2\x80\x9D",
                    "[\"a]", "{\"a:1}"});
}

TEST(JsonGrammar, ControlCharactersAreNotAllowedInStrings) {
    for (int code = 0; code != 0x20; ++code) {
        const std::string value = {'"', 'a', static_cast<char>(code), 'b', '"'};
        const std::string name = "{" + value + ":1}";
        expectRejected({value, name});
    }
    expectAccepted({{"\"a b\"", "\"a b\""}, {"\"\x7F\"", "\"\x7F\""}});
}

TEST(JsonGrammar, EscapesAreTheEightShortOnesAndFourHexadecimalDigits) {
    expectAccepted({
        {R"("\"")", "\"\"\""},
        {R"("\\")", "\"\\\""},
        {R"("\/")", "\"/\""},
        {R"("\b")", "\"\b\""},
        {R"("\f")", "\"\f\""},
        {R"("\n")", "\"\n\""},
        {R"("\r")", "\"\r\""},
        {R"("\t")", "\"\t\""},
        {R"("\u0041")", "\"A\""},
        {R"("\u00e9\u00E9")", "\"\xC3\xA9\xC3\xA9\""},
        {R"("\u20AC")", "\"\xE2\x82\xAC\""},
        {R"("\uFFFF")", "\"\xEF\xBF\xBF\""},
        {R"("\u0000")", "\"\0\""s},
        {R"("\\u0041")", "\"\\u0041\""},
        {R"("a\nb\nc")", "\"a\nb\nc\""},
    });
    expectRejected({R"("\a")",        R"("\v")",     R"("\0")",      R"("\x41")",   R"("\'")",
                    R"("\ ")",        R"("\N")",     R"("\U0041")",  R"("\u")",     R"("\u0")",
                    R"("\u00")",      R"("\u004")",  R"("\u004G")",  R"("\u 041")", R"("\u-041")",
                    R"("\u+041")",    R"("\u{41}")", R"("\)",        R"("\")",      "\"\\\n\"",
                    "\"\\\xC3\xA9\"", R"({"\a":1})", R"({"\u00":1})"});
}

TEST(JsonGrammar, SurrogateEscapesComeInPairs) {
    expectAccepted({
        {R"("\uD83D\uDE00")", "\"\xF0\x9F\x98\x80\""},
        {R"("\ud800\udc00")", "\"\xF0\x90\x80\x80\""},
        {R"("\uDBFF\uDFFF")", "\"\xF4\x8F\xBF\xBF\""},
        {R"("\uD7FF\uE000")", "\"\xED\x9F\xBF\xEE\x80\x80\""},
    });
    expectRejected({R"("\uD83D")", R"("\uDE00")", R"("\uD83Dx")", R"("\uD83D\n")",
                    R"("\uD83D\u0041")", R"("\uD83D\uD83D")", R"("\uDE00\uD83D")", R"("\uD83D\u")",
                    R"("\uD83D\uDE0")", R"({"\uD83D":1})"});
}

TEST(JsonGrammar, StringsAreWellFormedUtf8) {
    expectAccepted({
        {"\"\xC2\x80\xDF\xBF\"", "\"\xC2\x80\xDF\xBF\""},
        {"\"\xE0\xA0\x80\xEF\xBF\xBF\"", "\"\xE0\xA0\x80\xEF\xBF\xBF\""},
        {"\"\xED\x9F\xBF\xEE\x80\x80\"", "\"\xED\x9F\xBF\xEE\x80\x80\""},
        {"\"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF\"", "\"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF\""},
        {"\"\xE2\x80\xA8\xE2\x80\xA9\"", "\"\xE2\x80\xA8\xE2\x80\xA9\""},
        {"{\"\xC3\xA4\":1}", "{\xC3\xA4:i1}"},
    });
    for (const std::string bytes :
         {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xC3", "\xC3\x28", "\xE2\x82", "\xE2\x28\xA1",
          "\xE0\x9F\xBF", "\xED\xA0\x80", "\xED\xBF\xBF", "\xF0\x9F\x98", "\xF0\x8F\xBF\xBF",
          "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xF8\x88\x80\x80\x80", "\xFE", "\xFF"}) {
        // At the end, before more text, behind an escape, behind a long run, and in a name.
        expectRejected({"\"" + bytes + "\"", "[\"" + bytes + "abc\"]", "\"\\n" + bytes + "\"",
                        "\"" + std::string(64, 'x') + bytes + "\"", "{\"" + bytes + "\":1}",
                        "\"" + bytes});
    }
}

TEST(JsonGrammar, StringsMayBeLong) {
    const std::string run(100000, 'x');
    expectAccepted({{"\"" + run + "\"", "\"" + run + "\""},
                    {"\"\\n" + run + "\"", "\"\n" + run + "\""},
                    {"\"" + run + "\\n\"", "\"" + run + "\n\""}});
    std::string escapes;
    std::string characters;
    for (int count = 0; count != 5000; ++count) {
        escapes += R"(\u00e9\uD83D\uDE00\n)";
        characters += "\xC3\xA9\xF0\x9F\x98\x80\n";
    }
    expectAccepted({{"\"" + escapes + "\"", "\"" + characters + "\""},
                    {"{\"" + escapes + "\":1}", "{" + characters + ":i1}"}});
}

} // namespace
