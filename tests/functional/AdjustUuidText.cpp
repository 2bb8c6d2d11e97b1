#include "TextBox.hpp"
#include <corvane/workbench/bindings/functional.hpp>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <type_traits>

namespace corvane::workbench::bindings::functional {
namespace {

using test::TextBox;

constexpr AdjustUuidText kAdjust;
constexpr std::wstring_view kCanonical = L"01234567-89ab-cdef-0123-456789ABCDEF";

static_assert(std::is_empty_v<AdjustUuidText>);
static_assert(std::is_nothrow_default_constructible_v<AdjustUuidText>);
static_assert(std::is_nothrow_copy_assignable_v<AdjustUuidText>);

bool isCanonical(std::wstring_view text) {
    if (text.size() != 36) {
        return false;
    }
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (index == 8 || index == 13 || index == 18 || index == 23) {
            if (text[index] != L'-') {
                return false;
            }
        } else if (std::wstring_view(L"0123456789abcdefABCDEF").find(text[index]) ==
                   std::wstring_view::npos) {
            return false;
        }
    }
    return true;
}

TextBox adjusted(std::wstring_view notation) {
    return test::adjusted(kAdjust, notation);
}
TextBox box(std::wstring_view notation) {
    return TextBox::parse(notation);
}

TEST(AdjustUuidText, AnEmptyTextBecomesTheNilUuid) {
    EXPECT_EQ(adjusted(L"|"), box(L"|00000000-0000-0000-0000-000000000000"));
}

TEST(AdjustUuidText, AMissingDigitIsMadeUpAtTheEndOfTheCursorsGroup) {
    EXPECT_EQ(adjusted(L"012|4567-89ab-cdef-0123-456789abcdef"),
              box(L"012|45678-09ab-cdef-0123-456789abcdef"));
    EXPECT_EQ(adjusted(L"01234567-89|b-cdef-0123-456789abcdef"),
              box(L"01234567-89|bc-0def-0123-456789abcdef"));
    EXPECT_EQ(adjusted(L"01234567-89ab-cdef-0123-456789abcde|"),
              box(L"01234567-89ab-cdef-0123-456789abcde|0"));
}

TEST(AdjustUuidText, ASurplusDigitTakesThePlaceOfTheOneBehindTheCursorsGroup) {
    EXPECT_EQ(adjusted(L"012f|34567-89ab-cdef-0123-456789abcdef"),
              box(L"012f|3456-89ab-cdef-0123-456789abcdef"));
    EXPECT_EQ(adjusted(L"01234567-89ab-cdef-0123-f|456789abcdef"),
              box(L"01234567-89ab-cdef-0123-f|456789abcde"));
    EXPECT_EQ(adjusted(L"01234567f|-89ab-cdef-0123-456789abcdef"),
              box(L"01234567-f|89a-cdef-0123-456789abcdef"));
}

TEST(AdjustUuidText, AnEndOfTheSelectionBehindTheRemovedDigitsIsBroughtBackToTheGroupsEnd) {
    EXPECT_EQ(adjusted(L"]012f34567[-89ab-cdef-0123-456789abcdef"),
              box(L"]012f3456[-89ab-cdef-0123-456789abcdef"));
    EXPECT_EQ(adjusted(L"]012f34567-89ab-cdef-0123-456789abcdef["),
              box(L"]012f3456[-89ab-cdef-0123-456789abcdef"));
}

TEST(AdjustUuidText, TheGroupIsTheFirstWhoseEndIsNotBeforeTheSelectionsEnd) {
    EXPECT_EQ(adjusted(L"0123456|-89ab-cdef-0123-456789abcdef"),
              box(L"0123456|8-09ab-cdef-0123-456789abcdef"));
    EXPECT_EQ(adjusted(L"01234567|89ab-cdef-0123-456789abcde"),
              box(L"01234567|-089a-bcde-f012-3456789abcde"));
    EXPECT_EQ(adjusted(L"012345678|9ab-cdef-0123-456789abcde"),
              box(L"01234567-8|9ab-0cde-f012-3456789abcde"));
}

TEST(AdjustUuidText, MissingDigitsDoNotMoveThePositions) {
    EXPECT_EQ(adjusted(L"[0123]"), box(L"[0123]0000-0000-0000-0000-000000000000"));
    EXPECT_EQ(adjusted(L"]01234567 89ab cdef[ 0123 456789abcde"),
              box(L"]01234567-089a-bcde[-f012-3456789abcde"));
}

TEST(AdjustUuidText, EverythingButDigitsAndHyphensIsLostBeforeTheHyphensComeBack) {
    EXPECT_EQ(adjusted(L"{g0z1234567 89ab.cdef/0123_456789ABCDEF}|"),
              box(L"01234567-89ab-cdef-0123-456789ABCDEF|"));
    EXPECT_EQ(adjusted(L"ghijklmnopqrstuvwxyz\x00e4\xff11\x0661|"),
              box(L"|00000000-0000-0000-0000-000000000000"));
    EXPECT_EQ(adjusted(L"-0-1-2-3-4-5-6-7-8-9-a-b-c-d-e-f-0-1-2-3-4-5-6-7-8-9-A-B-C-D-E-F|"),
              box(L"01234567-89ab-cdef-0123-456789ABCDEF|"));
}

TEST(AdjustUuidText, LetterCaseStaysAsTyped) {
    EXPECT_EQ(adjusted(L"AbCdEf|"), box(L"AbCdEf|00-0000-0000-0000-000000000000"));
}

TEST(AdjustUuidText, ACursorBehindAHyphenStaysBehindIt) {
    EXPECT_EQ(adjusted(L"01234567-|89ab-cdef-0123-456789abcdef"),
              box(L"01234567-|89ab-cdef-0123-456789abcdef"));
    EXPECT_EQ(adjusted(L"01234567-|-89ab-cdef-0123-456789abcdef"),
              box(L"01234567-|89ab-cdef-0123-456789abcdef"));
    EXPECT_EQ(adjusted(L"01234567-[89ab-]cdef-0123-456789abcdef"),
              box(L"01234567-[89ab-]cdef-0123-456789abcdef"));
}

TEST(AdjustUuidText, ACursorInFrontOfAHyphenStaysInFrontOfIt) {
    EXPECT_EQ(adjusted(L"01234567|-89ab-cdef-0123-456789abcdef"),
              box(L"01234567|-89ab-cdef-0123-456789abcdef"));
}

TEST(AdjustUuidText, AHyphenTypedElsewhereDoesNotMoveTheCursor) {
    EXPECT_EQ(adjusted(L"012-|34567-89ab-cdef-0123-456789abcdef"),
              box(L"012|34567-89ab-cdef-0123-456789abcdef"));
}

TEST(AdjustUuidText, ACanonicalTextNeverChanges) {
    for (std::uint64_t start = 0; start <= kCanonical.size(); ++start) {
        for (std::uint64_t end = 0; end <= kCanonical.size(); ++end) {
            const TextBox before{std::wstring(kCanonical), start, end};
            TextBox after = before;
            after.adjust(kAdjust);
            ASSERT_EQ(after, before);
        }
    }
}

TEST(AdjustUuidText, TypingACanonicalTextKeyByKeyYieldsIt) {
    const TextBox expected{std::wstring(kCanonical), 36, 36};
    EXPECT_EQ(test::typed(kAdjust, kCanonical), expected);
}

TEST(AdjustUuidText, TypingOnlyTheDigitsYieldsTheHyphensToo) {
    const TextBox expected{std::wstring(kCanonical), 36, 36};
    EXPECT_EQ(test::typed(kAdjust, L"0123456789abcdef0123456789ABCDEF"), expected);
}

TEST(AdjustUuidText, EveryPositionInEveryLengthGivesAFixedPoint) {
    constexpr std::wstring_view texts[] = {L"0123456789abcdef0123456789ABCDEF0123456789",
                                           L"01234567-89ab-cdef-0123-456789ABCDEF-012",
                                           L"0-1-2x3-4-5-6-7-8-9-a-b--c-d-e-f-0-1-2-3"};
    for (const std::wstring_view text : texts) {
        for (std::size_t length = 0; length <= text.size(); ++length) {
            for (std::uint64_t start = 0; start <= length; ++start) {
                for (std::uint64_t end = 0; end <= length; ++end) {
                    TextBox once{std::wstring(text.substr(0, length)), start, end};
                    once.adjust(kAdjust);
                    ASSERT_TRUE(isCanonical(once.text)) << once;
                    ASSERT_TRUE(once.isConsistent()) << once;
                    TextBox twice = once;
                    twice.adjust(kAdjust);
                    ASSERT_EQ(twice, once);
                }
            }
        }
    }
}

TEST(AdjustUuidText, ARandomEditingSessionNeverLeavesTheCanonicalForm) {
    std::mt19937 random(36);
    TextBox edited;
    for (int step = 0; step < 40'000; ++step) {
        test::editAtRandom(edited, random, L"0123456789abcdefABCDEF---gG xX\x0665\x20ac");
        const TextBox before = edited;
        edited.adjust(kAdjust);
        ASSERT_TRUE(isCanonical(edited.text)) << before << " gave " << edited;
        ASSERT_TRUE(edited.isConsistent()) << before << " gave " << edited;
        TextBox twice = edited;
        twice.adjust(kAdjust);
        ASSERT_EQ(twice, edited) << before;
        if (random() % 50 == 0) {
            edited = {};
        }
    }
}

TEST(AdjustUuidText, APositionBeyondTheTextIsNotUsedToReadIt) {
    for (const std::uint64_t position : {std::uint64_t{100}, UINT64_MAX}) {
        TextBox edited{L"01234567-", position, position};
        edited.adjust(kAdjust);
        EXPECT_EQ(edited.text, L"01234567-0000-0000-0000-000000000000");
    }
}

} // namespace
} // namespace corvane::workbench::bindings::functional
