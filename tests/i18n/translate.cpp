#include <corvane/workbench/i18n/translate.hpp>

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using corvane::workbench::i18n::translate;

// Wide texts of code units, whatever the size of wchar_t.
using CodeUnits = std::wstring;

TEST(Translate, ATextIsReturnedAsItIs) {
    EXPECT_EQ(translate("workbench::json", "Error on line {}: {}"), L"Error on line {}: {}");
}

TEST(Translate, TheContextDoesNotMatter) {
    EXPECT_EQ(translate("", "speed"), L"speed");
    EXPECT_EQ(translate("corvane::workbench::model::Element", "speed"), L"speed");
    EXPECT_EQ(translate("no such context \xFF", "speed"), L"speed");
}

TEST(Translate, AnEmptyTextGivesAnEmptyResult) {
    EXPECT_EQ(translate("workbench::json", ""), L"");
    EXPECT_EQ(translate("workbench::json", std::string_view()), L"");
}

TEST(Translate, CharactersOutsideAsciiBecomeTheirCodeUnits) {
    EXPECT_EQ(translate("", "\xC3\xBC"), CodeUnits({0x00FC}));
    EXPECT_EQ(translate("", "\xE2\x80\x9C{}\xE2\x80\x9D"), CodeUnits({0x201C, L'{', L'}', 0x201D}));
    EXPECT_EQ(translate("", "\xEF\xBF\xBF"), CodeUnits({0xFFFF}));
}

TEST(Translate, ACharacterOutsideTheBasicPlaneBecomesASurrogatePair) {
    EXPECT_EQ(translate("", "a\xF0\x9F\x98\x80z"), CodeUnits({L'a', 0xD83D, 0xDE00, L'z'}));
    EXPECT_EQ(translate("", "\xF0\x90\x80\x80"), CodeUnits({0xD800, 0xDC00}));
    EXPECT_EQ(translate("", "\xF4\x8F\xBF\xBF"), CodeUnits({0xDBFF, 0xDFFF}));
}

TEST(Translate, ANulIsACharacterLikeAnyOther) {
    EXPECT_EQ(translate("", std::string_view("a\0b", 3)), CodeUnits({L'a', 0, L'b'}));
}

TEST(Translate, MalformedUtf8BecomesReplacementCharacters) {
    EXPECT_EQ(translate("", "a\xFFz"), CodeUnits({L'a', 0xFFFD, L'z'}));
    EXPECT_EQ(translate("", "\xC3"), CodeUnits({0xFFFD}));
    EXPECT_EQ(translate("", "\xE2\x80"), CodeUnits({0xFFFD}));
    EXPECT_EQ(translate("", "\xED\xA0\x80"), CodeUnits({0xFFFD, 0xFFFD, 0xFFFD}));
}

TEST(Translate, ALongTextIsReservedExactly) {
    const std::wstring result = translate("", std::string(1000, 'x') + "\xF0\x9F\x98\x80");
    EXPECT_EQ(result.size(), 1002u);
    EXPECT_LT(result.capacity(), 1100u);
}

} // namespace
