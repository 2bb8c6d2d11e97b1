#include <corvane/workbench/i18n/jsonErrorMessage.hpp>

#include <corvane/utils/string/transcode.hpp>

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <random>
#include <regex>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace {

std::wstring message(const std::string& text) {
    return corvane::workbench::i18n::jsonErrorMessage(std::runtime_error(text));
}

TEST(JsonErrorMessage, TheMessageOfADecoderNamesTheLineFirst) {
    EXPECT_EQ(message("JSON syntax error (line 12): unexpected character"),
              L"Error on line 12: unexpected character");
}

TEST(JsonErrorMessage, WhateverStandsBeforeTheParenthesisIsDropped) {
    EXPECT_EQ(message("a) (b) line 4: (line 3): c"), L"Error on line 3: c");
    EXPECT_EQ(message("(line 3): c"), L"Error on line 3: c");
}

TEST(JsonErrorMessage, AMessageWithoutALineStaysWhole) {
    EXPECT_EQ(message("expected a string, found a number"), L"expected a string, found a number");
    EXPECT_EQ(message(""), L"");
}

TEST(JsonErrorMessage, WhatOnlyLooksLikeALineStaysWhole) {
    for (const char* const text :
         {"(line ): x", "(line): x", "(line 12) x", "(line 12)", "(line 12 ): x", "(line -1): x",
          "(line 1.5): x", "( line 12): x", "line 12): x", "(Line 12): x", "(line\n12): x",
          "(line 12) : x", "(line x12): x", "(line 12x): x"}) {
        EXPECT_EQ(message(text), std::wstring(text, text + std::string_view(text).size()));
    }
}

TEST(JsonErrorMessage, BlanksAndTabsBeforeTheNumberAreAccepted) {
    EXPECT_EQ(message("x (line12): y"), L"Error on line 12: y");
    EXPECT_EQ(message("x (line \t  12): y"), L"Error on line 12: y");
}

TEST(JsonErrorMessage, BlanksAndTabsAfterTheColonAreNotPartOfTheText) {
    EXPECT_EQ(message("x (line 12):y"), L"Error on line 12: y");
    EXPECT_EQ(message("x (line 12): \t  y "), L"Error on line 12: y ");
    EXPECT_EQ(message("x (line 12):"), L"Error on line 12: ");
    EXPECT_EQ(message("x (line 12): \t"), L"Error on line 12: ");
}

TEST(JsonErrorMessage, LineZeroIsNoLine) {
    EXPECT_EQ(message("x (line 0): y"), L"x (line 0): y");
    EXPECT_EQ(message("x (line 000): y"), L"x (line 000): y");
}

TEST(JsonErrorMessage, LeadingZerosDoNotMatter) {
    EXPECT_EQ(message("x (line 0012): y"), L"Error on line 12: y");
    EXPECT_EQ(message("x (line 0000000000000000000000000000012): y"), L"Error on line 12: y");
}

TEST(JsonErrorMessage, ALineNumberThatDoesNotFitIsNoLine) {
    EXPECT_EQ(message("x (line 18446744073709551615): y"),
              L"Error on line 18446744073709551615: y");
    EXPECT_EQ(message("x (line 18446744073709551616): y"), L"x (line 18446744073709551616): y");
    EXPECT_EQ(message("x (line 99999999999999999999): y"), L"x (line 99999999999999999999): y");
    EXPECT_EQ(message("x (line 184467440737095516150): y"), L"x (line 184467440737095516150): y");
    EXPECT_EQ(message("x (line 1000000000000000000000000000000): y"),
              L"x (line 1000000000000000000000000000000): y");
}

TEST(JsonErrorMessage, TheFirstOfSeveralLinesCounts) {
    EXPECT_EQ(message("x (line 1): y (line 2): z"), L"Error on line 1: y (line 2): z");
    EXPECT_EQ(message("x (line (line 2): z"), L"Error on line 2: z");
    EXPECT_EQ(message("x (line 7(line 2): z"), L"Error on line 2: z");
    EXPECT_EQ(message("x (line 0): y (line 2): z"), L"x (line 0): y (line 2): z");
}

TEST(JsonErrorMessage, OnlyTheLastLineOfTheMessageIsSearched) {
    EXPECT_EQ(message("x (line 1): y\n"), L"x (line 1): y\n");
    EXPECT_EQ(message("x (line 1): y\nz"), L"x (line 1): y\nz");
    EXPECT_EQ(message("x (line 1): y\rz"), L"x (line 1): y\rz");
    EXPECT_EQ(message("x (line 1): y\nx (line 2): z"), L"Error on line 2: z");
    EXPECT_EQ(message("x (line 1): y\r\nx (line 2): z"), L"Error on line 2: z");
}

TEST(JsonErrorMessage, TheTextIsConvertedFromUtf8) {
    EXPECT_EQ(message("x (line 2): unknown member \xE2\x80\x9C\xC3\xBC\xE2\x80\x9D"),
              L"Error on line 2: unknown member \u201C\u00FC\u201D");
    EXPECT_EQ(message("\xC3\xBC (line 0): \xC3\xBC"), L"\u00FC (line 0): \u00FC");
}

TEST(JsonErrorMessage, BracesInTheTextAreNotTakenForAFormat) {
    EXPECT_EQ(message("x (line 2): {} {0} }{"), L"Error on line 2: {} {0} }{");
}

// The steps as they are written down, with the expression on the whole message: fit for short
// messages only.
std::wstring byTheExpression(const std::string& text) {
    static const std::regex expression("\\(line[ \\t]*(\\d+)\\):[ \\t]*(.*)$");
    std::smatch match;
    std::uint64_t line = 0;
    if (std::regex_search(text, match, expression)) {
        const std::string digits = match[1];
        const char* const end = digits.data() + digits.size();
        if (std::from_chars(digits.data(), end, line).ec != std::errc()) {
            line = 0;
        }
    }
    if (line == 0) {
        return corvane::utils::string::toWide(text);
    }
    return L"Error on line " + std::to_wstring(line) + L": " +
           corvane::utils::string::toWide(match[2].str());
}

TEST(JsonErrorMessage, RandomMessagesGiveWhatTheExpressionGivesOnTheWholeMessage) {
    constexpr std::array<std::string_view, 24> kPieces = {"(line",
                                                          "(line ",
                                                          "(line 7):",
                                                          "(line\t",
                                                          "(",
                                                          "line",
                                                          " ",
                                                          "\t",
                                                          "0",
                                                          "1",
                                                          "42",
                                                          "18446744073709551615",
                                                          "18446744073709551616",
                                                          "000",
                                                          "):",
                                                          ")",
                                                          ":",
                                                          "): ",
                                                          "x",
                                                          "\n",
                                                          "\r",
                                                          "\xE2\x80\xA8",
                                                          "\xC3\xBC",
                                                          "\xFF"};
    std::mt19937 random(20260801);
    std::uniform_int_distribution<std::size_t> count(0, 14);
    std::uniform_int_distribution<std::size_t> piece(0, kPieces.size() - 1);
    int located = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (std::size_t left = count(random); left > 0; --left) {
            text += kPieces[piece(random)];
        }
        const std::wstring expected = byTheExpression(text);
        ASSERT_EQ(message(text), expected) << ::testing::PrintToString(text);
        located += expected.starts_with(L"Error on line ") ? 1 : 0;
    }
    EXPECT_GT(located, 1000) << "the messages hardly ever name a line";
}

} // namespace
