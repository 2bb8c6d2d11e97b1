// Two independent libraries accept the same texts and find the same values in the same order.
#include "RandomValue.hpp"
#include "judges.hpp"
#include <corvane/workbench/json/Value.hpp>

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>

namespace corvane::workbench::json {
namespace {

using Format = utils::json::encoder::Document::Format;

TEST(JsonAgreement, OnRandomTexts) {
    test::RandomValue random(21);
    for (int round = 0; round < 1'500; ++round) {
        const std::string text =
            random().toString(round % 2 == 0 ? Format::Compact : Format::Indented);
        const test::Judgement judgement = test::judge(text);
        ASSERT_TRUE(judgement.accepted && judgement.isUnanimous()) << text;
    }
}

TEST(JsonAgreement, OnMutatedTexts) {
    test::RandomValue values(22);
    std::mt19937 random(23);
    constexpr std::string_view pieces[] = {
        "{",  "}",    "[",    "]",    ",",        ":",    "\"",     "\\",  "\\u", "\\ud83d",
        "0",  "-",    ".",    "e",    "E+",       "00",   "true",   "nul", "NaN", "\n",
        "\t", "\x01", "\x80", "\xc3", "\xed\xa0", "/**/", "\"a\":", "1",   "-0",  "\xef\xbb\xbf"};
    int accepted = 0;
    int refused = 0;
    for (int round = 0; round < 6'000; ++round) {
        std::string text = values(2).toString(Format::Compact);
        for (std::uint_fast32_t edits = 1 + random() % 3; edits > 0; --edits) {
            const std::size_t position = random() % (text.size() + 1);
            const std::size_t removed = random() % 3;
            text.replace(position, removed, pieces[random() % std::size(pieces)]);
        }
        const test::Judgement judgement = test::judge(text);
        ASSERT_TRUE(judgement.isUnanimous() || judgement.isRefusedOnPurpose()) << text;
        (judgement.accepted ? accepted : refused) += 1;
    }
    EXPECT_GT(accepted, 200);
    EXPECT_GT(refused, 200);
}

TEST(JsonAgreement, OnTextsAtTheEdge) {
    for (const char* const text : {"",
                                   " ",
                                   "nul",
                                   "nulll",
                                   "-",
                                   "01",
                                   "-01",
                                   "1.",
                                   ".5",
                                   "1e",
                                   "1e+",
                                   "+1",
                                   "0x1",
                                   "1 ",
                                   "\"\\ud83d\\ude00\"",
                                   "\"\\ud83d\"",
                                   "\"\\ude00\"",
                                   "\"\\ud83dx\"",
                                   "\"\\x41\"",
                                   "\"\t\"",
                                   "\"\x7f\"",
                                   "\"\xc0\x80\"",
                                   "\"\xed\xa0\x80\"",
                                   "\"\xf4\x90\x80\x80\"",
                                   "\"\xf0\x9f\x98\x80\"",
                                   "[1,]",
                                   "[,1]",
                                   "{\"a\":1,}",
                                   "{a:1}",
                                   "{'a':1}",
                                   "{\"a\" 1}",
                                   "[1 2]",
                                   "// x\n1",
                                   "9223372036854775807",
                                   "9223372036854775808",
                                   "-9223372036854775808",
                                   "-9223372036854775809",
                                   "18446744073709551615",
                                   "18446744073709551616",
                                   "1.7976931348623157e308",
                                   "1e309",
                                   "-1e309",
                                   "2.2250738585072011e-308",
                                   "4.9406564584124654e-324",
                                   "9007199254740993.0",
                                   "0.1e1",
                                   "-0",
                                   "-0.0",
                                   "0e0",
                                   "\f1",
                                   "\xef\xbb\xbf"
                                   "1"}) {
        const test::Judgement judgement = test::judge(text);
        EXPECT_TRUE(judgement.isUnanimous() || judgement.isRefusedOnPurpose()) << text;
    }
}

} // namespace
} // namespace corvane::workbench::json
