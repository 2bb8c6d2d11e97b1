#include "keystrokes.hpp"

#include "Failure.hpp"
#include "TextBox.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

using corvane::skillbench::keyNames;
using corvane::skillbench::Keystroke;
using corvane::skillbench::parseKeystrokes;
using corvane::skillbench::TextBox;
using corvane::skillbench::UsageFailure;
using testing::ElementsAre;

std::vector<std::string> names(std::string_view text) {
    std::vector<std::string> result;
    for (const Keystroke& keystroke : parseKeystrokes(text)) {
        result.push_back(keystroke.name);
    }
    return result;
}

/// What the keys make of "abcd" with the cursor in the middle.
std::string typed(std::string_view keys) {
    TextBox box(L"abcd", 2);
    for (const Keystroke& keystroke : parseKeystrokes(keys)) {
        keystroke.press(box);
    }
    return box.picture();
}

bool isEdit(std::string_view key) {
    TextBox box(L"abcd", 2);
    return parseKeystrokes(key).front().press(box);
}

TEST(Keystrokes, EachCharacterIsAKey) {
    EXPECT_THAT(names("a1ü\xF0\x9F\x9A\xB0-"), ElementsAre("a", "1", "ü", "\xF0\x9F\x9A\xB0", "-"));
    EXPECT_THAT(names(""), testing::IsEmpty());
}

TEST(Keystrokes, NamesStandInAngleBrackets) {
    EXPECT_THAT(names("2<left>><backspace>"), ElementsAre("2", "<left>", ">", "<backspace>"));
}

TEST(Keystrokes, DoWhatTheirNamesSay) {
    EXPECT_EQ(typed("x"), "abx|cd");
    EXPECT_EQ(typed("ü"), "abü|cd");
    EXPECT_EQ(typed("<left>"), "a|bcd");
    EXPECT_EQ(typed("<right>"), "abc|d");
    EXPECT_EQ(typed("<home>"), "|abcd");
    EXPECT_EQ(typed("<end>"), "abcd|");
    EXPECT_EQ(typed("<select-left>"), "a[b]cd");
    EXPECT_EQ(typed("<select-right>"), "ab[c]d");
    EXPECT_EQ(typed("<select-home>"), "[ab]cd");
    EXPECT_EQ(typed("<select-end>"), "ab[cd]");
    EXPECT_EQ(typed("<select-all>"), "[abcd]");
    EXPECT_EQ(typed("<backspace>"), "a|cd");
    EXPECT_EQ(typed("<delete>"), "ab|d");
    EXPECT_EQ(typed("<less>"), "ab<|cd");
    EXPECT_EQ(typed("<paste:1 2=3>"), "ab1 2=3|cd");
    EXPECT_EQ(typed("<select-left><paste:>"), "a|cd");
}

TEST(Keystrokes, OnlyWhatChangesTheTextIsAnEdit) {
    for (const char* key : {"x", "<backspace>", "<delete>", "<less>", "<paste:x>"}) {
        EXPECT_TRUE(isEdit(key)) << key;
    }
    for (const char* key : {"<left>", "<right>", "<home>", "<end>", "<select-left>",
                            "<select-right>", "<select-home>", "<select-end>", "<select-all>"}) {
        EXPECT_FALSE(isEdit(key)) << key;
    }
}

TEST(Keystrokes, RefusesOtherNames) {
    const auto failure = [](std::string_view text) -> std::string {
        try {
            (void)parseKeystrokes(text);
        } catch (const UsageFailure& thrown) {
            return thrown.what();
        }
        return {};
    };
    EXPECT_EQ(failure("1<up>"),
              "there is no key “<up>”; the names are <left> <right> <home> <end> <select-left> "
              "<select-right> <select-home> <select-end> <select-all> <backspace> <delete> <less> "
              "<paste:TEXT>");
    EXPECT_EQ(failure("1<left"), "“<” without “>” in “<left”; the character itself is <less>");
}

} // namespace
