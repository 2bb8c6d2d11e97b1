#include <corvane/workbench/host/displayText.hpp>

#include <gtest/gtest.h>

namespace {

using namespace corvane::workbench::host;

TEST(DisplayText, StaysOnOneLine) {
    EXPECT_EQ(onOneLine(std::string_view("a\nb\tc\rd")), "a\\nb\\tc\\rd");
}

TEST(DisplayText, GivesTheTerminalNoCommands) {
    EXPECT_EQ(onOneLine(std::string_view("\x1b[31mred\x7f\x01")), "\\u001b[31mred\\u007f\\u0001");
}

TEST(DisplayText, PrintsWideTextAsUtf8) {
    EXPECT_EQ(onOneLine(std::wstring_view(L"F\u00fcllstand \u03a9")), "Füllstand Ω");
    // U+1F6B0 as the two units of UTF-16, and half of it.
    EXPECT_EQ(onOneLine(std::wstring_view(L"\xD83D\xDEB0")), "\xF0\x9F\x9A\xB0");
    EXPECT_EQ(onOneLine(std::wstring_view(L"\xD83D")), "\xEF\xBF\xBD");
}

TEST(DisplayText, CountsInWords) {
    EXPECT_EQ(countText(0, "error"), "no errors");
    EXPECT_EQ(countText(1, "error"), "1 error");
    EXPECT_EQ(countText(2, "element"), "2 elements");
}

TEST(DisplayText, NamesTheRoot) {
    EXPECT_EQ(keyText(""), "(root)");
    EXPECT_EQ(keyText("Werk.Öl"), "Werk.Öl");
}

} // namespace
