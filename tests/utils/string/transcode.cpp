#include <corvane/utils/string/transcode.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace {

using corvane::utils::string::toUtf8;
using corvane::utils::string::toWide;

std::wstring units(std::initializer_list<unsigned> values) {
    std::wstring text;
    for (const unsigned value : values) {
        text.push_back(static_cast<wchar_t>(value));
    }
    return text;
}

TEST(Transcode, GivesEmptyTextForEmptyText) {
    EXPECT_EQ(toWide(""), L"");
    EXPECT_EQ(toUtf8(L""), "");
}

TEST(Transcode, CarriesAsciiOfEveryLengthOver) {
    std::string narrow;
    std::wstring wide;
    for (int length = 0; length != 40; ++length) {
        EXPECT_EQ(toWide(narrow), wide);
        EXPECT_EQ(toUtf8(wide), narrow);
        narrow.push_back(static_cast<char>('A' + length));
        wide.push_back(static_cast<wchar_t>(L'A' + length));
    }
}

TEST(Transcode, WritesUtf16AlsoWhereWideCharactersAreLarger) {
    EXPECT_EQ(toWide("\xC3\xBC"), units({0xFC}));
    EXPECT_EQ(toWide("\xE2\x82\xAC"), units({0x20AC}));
    EXPECT_EQ(toWide("x\xF0\x9F\x98\x80y"), units({'x', 0xD83D, 0xDE00, 'y'}));
}

TEST(Transcode, FindsCharactersAtEveryPlaceOfABlock) {
    for (std::size_t before = 0; before != 20; ++before) {
        for (std::size_t after = 0; after != 20; ++after) {
            const std::string narrow =
                std::string(before, 'a') + "\xF0\x9F\x98\x80\xC3\xBC" + std::string(after, 'b');
            const std::wstring wide = std::wstring(before, L'a') + units({0xD83D, 0xDE00, 0xFC}) +
                                      std::wstring(after, L'b');
            ASSERT_EQ(toWide(narrow), wide) << before << ' ' << after;
            ASSERT_EQ(toUtf8(wide), narrow) << before << ' ' << after;
        }
    }
}

TEST(Transcode, ConvertsTextsOfEveryLengthAlike) {
    std::string narrow;
    std::wstring wide;
    for (int character = 0; character != 600; ++character) {
        narrow += character % 5 == 0 ? "\xE6\xB0\xB4" : character % 7 == 0 ? "\xFF" : "m";
        wide += static_cast<wchar_t>(character % 5 == 0   ? 0x6C34
                                     : character % 7 == 0 ? 0xFFFD
                                                          : 'm');
        ASSERT_EQ(toWide(narrow), wide) << narrow.size();
    }
}

TEST(Transcode, GivesOneReplacementForEachMaximalSubpart) {
    EXPECT_EQ(toWide("\xF0\x9F\x98"), units({0xFFFD}));
    EXPECT_EQ(toWide("\xC3\xC3\xBC"), units({0xFFFD, 0xFC}));
    EXPECT_EQ(toWide("\xED\xA0\x80"), units({0xFFFD, 0xFFFD, 0xFFFD}));
    EXPECT_EQ(toWide("abcdefgh\xFFijk"), L"abcdefgh" + units({0xFFFD}) + L"ijk");
}

TEST(Transcode, WritesAReplacementForALoneSurrogate) {
    EXPECT_EQ(toUtf8(units({0xD83D})), "\xEF\xBF\xBD");
    EXPECT_EQ(toUtf8(units({0xDE00, 0xD83D, 'x'})), "\xEF\xBF\xBD\xEF\xBF\xBDx");
    EXPECT_EQ(toUtf8(units({0xD83D, 0xD83D, 0xDE00})), "\xEF\xBF\xBD\xF0\x9F\x98\x80");
}

TEST(Transcode, WritesAReplacementForAUnitThatUtf16DoesNotHave) {
    if constexpr (sizeof(wchar_t) > 2) {
        EXPECT_EQ(toUtf8(units({0x10000})), "\xEF\xBF\xBD");
        EXPECT_EQ(toUtf8(units({0xFFFFFFFF})), "\xEF\xBF\xBD");
    } else {
        EXPECT_EQ(toUtf8(units({0xFFFF})), "\xEF\xBF\xBF");
    }
}

TEST(Transcode, KeepsEveryCharacterThereAndBack) {
    for (std::uint32_t character = 0; character <= 0x10FFFF; character += 7) {
        if (character >= 0xD800 && character <= 0xDFFF) {
            continue;
        }
        const std::wstring wide =
            character < 0x10000
                ? units({character})
                : units({0xD800 + ((character - 0x10000) >> 10U), 0xDC00 + (character & 0x3FFU)});
        ASSERT_EQ(toWide(toUtf8(wide)), wide) << character;
    }
}

} // namespace
