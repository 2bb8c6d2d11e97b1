#include <corvane/utils/string/detail/Utf16CodeUnitCounter.hpp>
#include <corvane/utils/string/detail/Utf16Encoder.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

using corvane::utils::string::detail::Utf16CodeUnitCounter;
using corvane::utils::string::detail::Utf16Encoder;

std::wstring encoded(char32_t character) {
    std::wstring units;
    Utf16Encoder().encode(character, [&units](wchar_t unit) { units.push_back(unit); });
    return units;
}

std::wstring units(std::initializer_list<unsigned> values) {
    std::wstring text;
    for (const unsigned value : values) {
        text.push_back(static_cast<wchar_t>(value));
    }
    return text;
}

TEST(Utf16Encoder, WritesOneUnitInsideTheBasicPlane) {
    EXPECT_EQ(encoded(U'\0'), units({0}));
    EXPECT_EQ(encoded(U'a'), L"a");
    EXPECT_EQ(encoded(U'\uD7FF'), units({0xD7FF}));
    EXPECT_EQ(encoded(U'\uE000'), units({0xE000}));
    EXPECT_EQ(encoded(U'\uFFFF'), units({0xFFFF}));
}

TEST(Utf16Encoder, WritesASurrogatePairOutsideTheBasicPlane) {
    EXPECT_EQ(encoded(U'\U00010000'), units({0xD800, 0xDC00}));
    EXPECT_EQ(encoded(U'\U0001F600'), units({0xD83D, 0xDE00}));
    EXPECT_EQ(encoded(U'\U0010FFFF'), units({0xDBFF, 0xDFFF}));
}

TEST(Utf16Encoder, WritesAReplacementForWhatIsNoCharacter) {
    EXPECT_EQ(encoded(static_cast<char32_t>(0xD800)), units({0xFFFD}));
    EXPECT_EQ(encoded(static_cast<char32_t>(0xDFFF)), units({0xFFFD}));
    EXPECT_EQ(encoded(static_cast<char32_t>(0x110000)), units({0xFFFD}));
}

TEST(Utf16CodeUnitCounter, CountsTwoUnitsOutsideTheBasicPlane) {
    Utf16CodeUnitCounter counter;
    EXPECT_EQ(counter.count(), 0U);
    counter(U'a');
    counter(U'\uFFFF');
    EXPECT_EQ(counter.count(), 2U);
    counter(U'\U00010000');
    EXPECT_EQ(counter.count(), 4U);
}

} // namespace
