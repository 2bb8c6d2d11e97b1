#include "TextBox.hpp"
#include <corvane/workbench/bindings/functional.hpp>

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <type_traits>

namespace corvane::workbench::bindings::functional {
namespace {

using test::TextBox;

constexpr AdjustTimeStampText kAdjust;

static_assert(std::is_empty_v<AdjustTimeStampText>);
static_assert(std::is_nothrow_default_constructible_v<AdjustTimeStampText>);
static_assert(std::is_nothrow_copy_assignable_v<AdjustTimeStampText>);

bool isDigit(wchar_t character) {
    return character >= L'0' && character <= L'9';
}

/// Whether the text matches `pattern`, in which "0" stands for any digit.
bool matches(std::wstring_view text, std::wstring_view pattern) {
    if (text.size() != pattern.size()) {
        return false;
    }
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (pattern[index] == L'0' ? !isDigit(text[index]) : text[index] != pattern[index]) {
            return false;
        }
    }
    return true;
}

bool isCanonical(std::wstring_view text) {
    if (text.size() < 20 || !matches(text.substr(0, 19), L"0000-00-00 00:00:00")) {
        return false;
    }
    text.remove_prefix(19);
    if (text.front() == L'.') {
        text.remove_prefix(1);
        while (!text.empty() && isDigit(text.front())) {
            text.remove_prefix(1);
        }
    }
    return text == L"Z" || matches(text, L"+00:00") || matches(text, L"-00:00");
}

TextBox adjusted(std::wstring_view notation) {
    return test::adjusted(kAdjust, notation);
}
TextBox box(std::wstring_view notation) {
    return TextBox::parse(notation);
}

TEST(AdjustTimeStampText, AnEmptyTextBecomesTheFirstSecondOfTheMillennium) {
    TextBox edited;
    edited.adjust(kAdjust);
    EXPECT_EQ(edited.text, L"2001-01-01 00:00:00Z");
    EXPECT_EQ(edited.selectionStart, 0U);
    EXPECT_EQ(edited.selectionEnd, 0U);
}

TEST(AdjustTimeStampText, AnEmptyTextLeavesThePositionsAsTheyWere) {
    TextBox edited{L"", 3, 7};
    edited.adjust(kAdjust);
    EXPECT_EQ(edited.text, L"2001-01-01 00:00:00Z");
    EXPECT_EQ(edited.selectionStart, 3U);
    EXPECT_EQ(edited.selectionEnd, 7U);
}

TEST(AdjustTimeStampText, OtherWritingsOfTheSeparatorsBecomeTheCanonicalOnes) {
    EXPECT_EQ(adjusted(L"2024/05/06T07:08:09z|"), box(L"2024-05-06 07:08:09Z|"));
    EXPECT_EQ(adjusted(L"|2024/05/06t07:08:09,25z"), box(L"|2024-05-06 07:08:09.25Z"));
}

TEST(AdjustTimeStampText, WhateverFollowsTheZIsCutOff) {
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09Z+05:00|"), box(L"2024-05-06 07:08:09Z|"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09Z[abc]"), box(L"2024-05-06 07:08:09Z|"));
    EXPECT_EQ(adjusted(L"[2024-05-06 07:08:09Zab]c"), box(L"[2024-05-06 07:08:09Z]"));
}

TEST(AdjustTimeStampText, AMonthCannotStartWithTwoOrMore) {
    EXPECT_EQ(adjusted(L"2024-3|05-06 07:08:09Z"), box(L"2024-|05-06 07:08:09Z"));
    EXPECT_EQ(adjusted(L"2024-2|05-06 07:08:09Z"), box(L"2024-|05-06 07:08:09Z"));
    EXPECT_EQ(adjusted(L"2024-1|05-06 07:08:09Z"), box(L"2024-1|0-06 07:08:09Z"));
}

TEST(AdjustTimeStampText, TypingZeroAfterZeroGivesOneInMonthAndDay) {
    EXPECT_EQ(adjusted(L"2024-05-00|6 07:08:09Z"), box(L"2024-05-01| 07:08:09Z"));
    EXPECT_EQ(adjusted(L"2024-00|5-06 07:08:09Z"), box(L"2024-01|-06 07:08:09Z"));
}

TEST(AdjustTimeStampText, AnHourAfterTwoTakesNoDigitAboveThree) {
    EXPECT_EQ(adjusted(L"2024-05-06 24|7:08:09Z"), box(L"2024-05-06 2|7:08:09Z"));
    EXPECT_EQ(adjusted(L"2024-05-06 23|7:08:09Z"), box(L"2024-05-06 23|:08:09Z"));
    EXPECT_EQ(adjusted(L"2024-05-06 19|7:08:09Z"), box(L"2024-05-06 19|:08:09Z"));
}

TEST(AdjustTimeStampText, SecondsTakeALeapSecondButNoMore) {
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:60|9Z"), box(L"2024-05-06 07:08:60|Z"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:61|0Z"), box(L"2024-05-06 07:08:6|0Z"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:7|09Z"), box(L"2024-05-06 07:08:|09Z"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:6|08:09Z"), box(L"2024-05-06 07:|08:09Z"));
}

TEST(AdjustTimeStampText, AnOffsetWithoutColonIsCompleted) {
    EXPECT_EQ(adjusted(L"|2024-05-06 07:08:09+05"), box(L"|2024-05-06 07:08:09+05:00"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09+05|"), box(L"2024-05-06 07:08:09+05|:00"));
    EXPECT_EQ(adjusted(L"|2024-05-06 07:08:09-5"), box(L"|2024-05-06 07:08:09-50:00"));
}

TEST(AdjustTimeStampText, AFourDigitOffsetWithoutColonKeepsItsHours) {
    EXPECT_EQ(adjusted(L"|2024-05-06 07:08:09+0530"), box(L"|2024-05-06 07:08:09+05:00"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09+0530|"), box(L"2024-05-06 07:08:09+05|:00"));
}

TEST(AdjustTimeStampText, AnOffsetWithoutColonIsDividedAtTheCursor) {
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09+05|30"), box(L"2024-05-06 07:08:09+05|:30"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09+|0530"), box(L"2024-05-06 07:08:09+|00:05"));
}

TEST(AdjustTimeStampText, OffsetHoursGoUpTo99AndMinutesUpTo59) {
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09+99|0:00"), box(L"2024-05-06 07:08:09+99|:00"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09+05:6|00"), box(L"2024-05-06 07:08:09+05:|00"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09+05:59|0"), box(L"2024-05-06 07:08:09+05:59|"));
}

TEST(AdjustTimeStampText, ASignBehindWhichNoOtherZoneFollowsStays) {
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09+|Z"), box(L"2024-05-06 07:08:09+|00:00"));
}

TEST(AdjustTimeStampText, ASectionCutAtTheCursorGetsAllItsSeparators) {
    EXPECT_EQ(adjusted(L"2024|-05:00"), box(L"2024|-00-00 00:00:00-05:00"));
}

TEST(AdjustTimeStampText, ADigitTypedPastAFullFieldGoesToTheNext) {
    EXPECT_EQ(adjusted(L"20241|-05-06 07:08:09Z"), box(L"2024-1|0-06 07:08:09Z"));
    EXPECT_EQ(adjusted(L"2024-051|-06 07:08:09Z"), box(L"2024-05-1|0 07:08:09Z"));
    EXPECT_EQ(adjusted(L"2024-05-061| 07:08:09Z"), box(L"2024-05-06 1|0:08:09Z"));
    EXPECT_EQ(adjusted(L"2024-05-06 071|:08:09Z"), box(L"2024-05-06 07:1|0:09Z"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:081|:09Z"), box(L"2024-05-06 07:08:1|0Z"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09+051|:30"), box(L"2024-05-06 07:08:09+05:1|3"));
}

TEST(AdjustTimeStampText, ACarriedDigitThatCannotLeadTheNextFieldIsRefused) {
    EXPECT_EQ(adjusted(L"20243|-05-06 07:08:09Z"), box(L"2024-|05-06 07:08:09Z"));
    EXPECT_EQ(adjusted(L"2024-055|-06 07:08:09Z"), box(L"2024-05-|06 07:08:09Z"));
}

TEST(AdjustTimeStampText, ADigitTypedPastTheSecondsGoesToTheFractionOrTheZone) {
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:091|.5Z"), box(L"2024-05-06 07:08:09.1|5Z"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:091|+05:00"), box(L"2024-05-06 07:08:09+1|0:00"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:091|Z"), box(L"2024-05-06 07:08:09+1|0:00"));
}

TEST(AdjustTimeStampText, TheFractionKeepsItsPointAndAnyNumberOfDigits) {
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09.5|Z"), box(L"2024-05-06 07:08:09.5|Z"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09.|Z"), box(L"2024-05-06 07:08:09.|Z"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09.1a2.3:4x|Z"), box(L"2024-05-06 07:08:09.1234|Z"));
    EXPECT_EQ(adjusted(L"|2024-05-06 07:08:09.12345678901234567890Z"),
              box(L"|2024-05-06 07:08:09.12345678901234567890Z"));
}

TEST(AdjustTimeStampText, AnUnfinishedTimeGetsItsSeparatorsBehindTheCursor) {
    EXPECT_EQ(adjusted(L"2024-05-06 07|"), box(L"2024-05-06 07|:00:00+00:00"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09|"), box(L"2024-05-06 07:08:09|Z"));
    EXPECT_EQ(adjusted(L"2024-05-06|"), box(L"2024-05-06| 00:00:00+00:00"));
    EXPECT_EQ(adjusted(L"2|"), box(L"2|000-00-00 00:00:00+00:00"));
}

TEST(AdjustTimeStampText, AMissingZoneIsUtcOnlyIfNoDigitButZeroFollows) {
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09|00"), box(L"2024-05-06 07:08:09|Z"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09|05"), box(L"2024-05-06 07:08:09|+05:00"));
    EXPECT_EQ(adjusted(L"|2024-05-06 07:08:09"), box(L"|2024-05-06 07:08:09+00:00"));
    EXPECT_EQ(adjusted(L"[2024]-05-06 07:08:09"), box(L"[2024]-05-06 07:08:09+00:00"));
}

TEST(AdjustTimeStampText, ACursorDirectlyBehindTheFirstSeparatorMarksTheSecond) {
    EXPECT_EQ(adjusted(L"2024-|06 07:08:09Z"), box(L"2024-|00-06 07:08:09Z"));
}

TEST(AdjustTimeStampText, ACursorWithinASectionWithoutSeparatorsMarksTheFirst) {
    EXPECT_EQ(adjusted(L"2024|0506 07:08:09Z"), box(L"2024|-05-00 07:08:09Z"));
    EXPECT_EQ(adjusted(L"2024-05-06 07|08Z"), box(L"2024-05-06 07|:08:00Z"));
}

TEST(AdjustTimeStampText, ASeparatorTypedInFrontOfTheSameOneIsNotDoubled) {
    EXPECT_EQ(adjusted(L"2024-|-05-06 07:08:09Z"), box(L"2024-|05-06 07:08:09Z"));
    EXPECT_EQ(adjusted(L"2024-05-06 | 07:08:09Z"), box(L"2024-05-06 |07:08:09Z"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:|:08:09Z"), box(L"2024-05-06 07:|08:09Z"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09.|.5Z"), box(L"2024-05-06 07:08:09.|5Z"));
    EXPECT_EQ(adjusted(L"2024/|-05-06 07:08:09Z"), box(L"2024-|05-06 07:08:09Z"));
}

TEST(AdjustTimeStampText, ATypedZoneSignReplacesTheOldOne) {
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09Z|+05:00"), box(L"2024-05-06 07:08:09Z|"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09-|+05:00"), box(L"2024-05-06 07:08:09-|05:00"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09+|-05:00"), box(L"2024-05-06 07:08:09+|05:00"));
    EXPECT_EQ(adjusted(L"2024-05-06 07:08:09z|+05:00"), box(L"2024-05-06 07:08:09Z|"));
}

TEST(AdjustTimeStampText, AStrayStopInFrontOfTheCursorDoesNotEndTheDate) {
    EXPECT_EQ(adjusted(L"2024-05:|-06 07:08:09Z"), box(L"2024-05|-06 07:08:09Z"));
}

TEST(AdjustTimeStampText, ADeletedDigitIsMadeUpAtTheFieldsEnd) {
    EXPECT_EQ(adjusted(L"2024-0|-06 07:08:09Z"), box(L"2024-0|0-06 07:08:09Z"));
    EXPECT_EQ(adjusted(L"204|-05-06 07:08:09Z"), box(L"204|0-05-06 07:08:09Z"));
}

TEST(AdjustTimeStampText, OnlyAsciiDigitsAreDigits) {
    EXPECT_EQ(adjusted(L"|20\x0662\x0664-05-06 07:08:09Z"), box(L"|2000-05-06 07:08:09Z"));
    EXPECT_EQ(adjusted(L"|2024-05-06 07:08:\xff10\xff19Z"), box(L"|2024-05-06 07:08:00Z"));
}

TEST(AdjustTimeStampText, ACanonicalTextNeverChanges) {
    constexpr std::array<std::wstring_view, 9> canonical{L"2024-05-06 07:08:09Z",
                                                         L"0000-01-01 00:00:00Z",
                                                         L"9999-12-31 23:59:60Z",
                                                         L"2024-10-20 20:50:50.0Z",
                                                         L"2024-05-06 07:08:09+05:30",
                                                         L"2024-05-06 07:08:09-99:59",
                                                         L"2024-11-30 19:08:09.123456+00:00",
                                                         L"2024-02-31 07:08:09.5-00:00",
                                                         L"2024-05-06 07:08:09.Z"};
    for (const std::wstring_view text : canonical) {
        for (std::uint64_t start = 0; start <= text.size(); ++start) {
            for (std::uint64_t end = 0; end <= text.size(); ++end) {
                const TextBox before{std::wstring(text), start, end};
                TextBox after = before;
                after.adjust(kAdjust);
                ASSERT_EQ(after, before);
            }
        }
    }
}

TEST(AdjustTimeStampText, TypingACanonicalTextKeyByKeyYieldsIt) {
    constexpr std::array<std::wstring_view, 8> canonical{
        L"2024-05-06 07:08:09Z",      L"0000-01-01 00:00:00Z",
        L"9999-12-31 23:59:60Z",      L"2024-05-06 07:08:09+05:30",
        L"2024-05-06 07:08:09-99:59", L"2024-11-30 19:08:09.123456+00:00",
        L"2024-10-10 20:50:50.025Z",  L"2024-05-06 07:08:09.5-00:45"};
    for (const std::wstring_view text : canonical) {
        TextBox expected{std::wstring(text), text.size(), text.size()};
        EXPECT_EQ(test::typed(kAdjust, text), expected);
    }
}

TEST(AdjustTimeStampText, TypingOnlyTheDigitsYieldsTheSeparatorsToo) {
    EXPECT_EQ(test::typed(kAdjust, L"20240506070809"),
              TextBox::parse(L"2024-05-06 07:08:09|+00:00"));
}

TEST(AdjustTimeStampText, EveryPositionInEveryShortenedTextGivesACanonicalText) {
    constexpr std::array<std::wstring_view, 6> texts{
        L"2024-05-06 07:08:09Z", L"2024-05-06 07:08:09.25+05:30", L"------", L"::::::", L"+Z+Z .",
        L"12345678901234567890"};
    for (const std::wstring_view text : texts) {
        for (std::size_t length = 1; length <= text.size(); ++length) {
            for (std::uint64_t start = 0; start <= length; ++start) {
                for (std::uint64_t end = 0; end <= length; ++end) {
                    for (const std::wstring_view piece :
                         {text.substr(0, length), text.substr(text.size() - length)}) {
                        TextBox edited{std::wstring(piece), start, end};
                        const TextBox before = edited;
                        edited.adjust(kAdjust);
                        ASSERT_TRUE(isCanonical(edited.text)) << before << " gave " << edited;
                        ASSERT_TRUE(edited.isConsistent()) << before << " gave " << edited;
                    }
                }
            }
        }
    }
}

TEST(AdjustTimeStampText, EveryShortTextGivesACanonicalText) {
    constexpr std::wstring_view alphabet = L"-: +Z.19";
    for (std::size_t number = 0; number < 8 * 8 * 8 * 8; ++number) {
        std::wstring text;
        for (std::size_t rest = number, place = 0; place < 4; ++place, rest /= 8) {
            text += alphabet[rest % 8];
        }
        for (std::uint64_t cursor = 0; cursor <= text.size(); ++cursor) {
            TextBox edited{text, cursor, cursor};
            edited.adjust(kAdjust);
            ASSERT_TRUE(isCanonical(edited.text) && edited.isConsistent())
                << TextBox{text, cursor, cursor} << " gave " << edited;
        }
    }
}

TEST(AdjustTimeStampText, ARandomEditingSessionNeverLeavesTheCanonicalForm) {
    std::mt19937 random(20240506);
    TextBox edited;
    for (int step = 0; step < 40'000; ++step) {
        test::editAtRandom(edited, random, L"0123456789012-/ :.,+-ZzTtx\x0665\x20ac");
        const TextBox before = edited;
        edited.adjust(kAdjust);
        ASSERT_TRUE(isCanonical(edited.text)) << before << " gave " << edited;
        ASSERT_TRUE(edited.isConsistent()) << before << " gave " << edited;
        if (random() % 50 == 0) {
            edited = {};
        }
    }
}

TEST(AdjustTimeStampText, APositionBeyondTheTextIsNotUsedToReadIt) {
    for (const std::uint64_t position : {std::uint64_t{100}, UINT64_MAX}) {
        TextBox edited{L"2024-05", position, position};
        edited.adjust(kAdjust);
        EXPECT_TRUE(isCanonical(edited.text)) << edited;
    }
}

TEST(AdjustTimeStampText, ALongPastedTextIsAdjustedInOnePass) {
    TextBox edited{L"2024-" + std::wstring(1'000'000, L'x') + L"05-06 07:08:09Z", 0, 0};
    edited.adjust(kAdjust);
    EXPECT_EQ(edited.text, L"2024-05-06 07:08:09Z");
}

} // namespace
} // namespace corvane::workbench::bindings::functional
