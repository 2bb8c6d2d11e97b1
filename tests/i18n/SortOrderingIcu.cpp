// How ICU's comparison differs from that of Windows, and what the user's language changes. The
// program runs once for each language; the tests for one of them run under that one only.
#include <corvane/workbench/i18n/SortOrdering.hpp>

#include <gtest/gtest.h>

#include <compare>
#include <string>
#include <string_view>

namespace {

std::weak_ordering compare(std::wstring_view left, std::wstring_view right) {
    return corvane::workbench::i18n::SortOrdering()(left, right);
}

constexpr auto kLess = std::weak_ordering::less;
constexpr auto kEquivalent = std::weak_ordering::equivalent;
constexpr auto kGreater = std::weak_ordering::greater;

TEST(SortOrderingIcu, LeadingZerosDoNotCount) {
    EXPECT_EQ(compare(L"file01", L"file1"), kEquivalent);
    EXPECT_EQ(compare(L"file002", L"file1"), kGreater);
    EXPECT_EQ(compare(L"file01a", L"file1b"), kLess);
}

TEST(SortOrderingIcu, RunsOfDigitsOfAnyLengthAreComparedByTheirValue) {
    EXPECT_EQ(compare(L"a999999999999999999998", L"a999999999999999999999"), kLess);
    EXPECT_EQ(compare(L"a99999999999999999999", L"a100000000000000000000"), kLess);
}

TEST(SortOrderingIcu, SymbolsOutsideTheBasicPlaneComeBeforeLetters) {
    const wchar_t pair[] = {0xD83D, 0xDE00};
    EXPECT_EQ(compare(std::wstring_view(pair, 2), L"a"), kLess);
}

TEST(SortOrderingIcu, HyphensAndApostrophesCountLikeOtherCharacters) {
    EXPECT_EQ(compare(L"co-op", L"coop"), kLess);
    EXPECT_EQ(compare(L"co-z", L"coa"), kLess);
    EXPECT_EQ(compare(L"it's", L"its"), kLess);
}

TEST(SortOrderingIcu, FullWidthLettersAreEquivalentToOrdinaryOnes) {
    EXPECT_EQ(compare(L"\uFF41", L"a"), kEquivalent);
}

TEST(SortOrderingIcu, ComposedAndDecomposedLettersAreEquivalent) {
    EXPECT_EQ(compare(L"\u00FC", L"u\u0308"), kEquivalent);
}

TEST(SortOrderingIcu, MarksInAnyCanonicalOrderAreEquivalent) {
    EXPECT_EQ(compare(L"s\u0323\u0307", L"s\u0307\u0323"), kEquivalent);
    EXPECT_EQ(compare(L"\u1E69", L"s\u0307\u0323"), kEquivalent);
    EXPECT_EQ(compare(L"\u212B", L"\u00C5"), kEquivalent);
    EXPECT_EQ(compare(L"\uAC00", L"\u1100\u1161"), kEquivalent);
}

TEST(SortOrderingIcu, RunsOfDigitsOfAnyScriptAreComparedByTheirValue) {
    EXPECT_EQ(compare(L"\uFF11\uFF19", L"\uFF12\uFF10"), kLess);
    EXPECT_EQ(compare(L"\uFF12\uFF10", L"\uFF11\uFF10\uFF10"), kLess);
    EXPECT_EQ(compare(L"\uFF11\uFF19", L"\uFF11\uFF10\uFF10"), kLess);
    EXPECT_EQ(compare(L"\uFF11\uFF19", L"100"), kLess);
    EXPECT_EQ(compare(L"\u0661\u0669", L"\u0662\u0660"), kLess);
    EXPECT_EQ(compare(L"x19", L"x\uFF12\uFF10"), kLess);
}

TEST(SortOrderingIcu, DigitsOutsideTheBasicPlaneAreComparedByTheirValue) {
    const wchar_t two[] = {0xD835, 0xDFD0};
    const std::wstring ten = {0xD835, 0xDFCF, 0xD835, 0xDFCE};
    EXPECT_EQ(compare(std::wstring_view(two, 2), ten), kLess);
}

TEST(SortOrderingIcu, ALoneSurrogateIsComparedAndDoesNotFail) {
    const wchar_t lone = 0xD83D;
    EXPECT_EQ(compare(std::wstring_view(&lone, 1), L"a"), kGreater);
    EXPECT_EQ(compare(std::wstring_view(&lone, 1), std::wstring_view(&lone, 1)), kEquivalent);
}

// The same for all languages but Turkish.
TEST(SortOrderingOutsideTurkish, TheTwoLettersIAreOneLetter) {
    EXPECT_EQ(compare(L"item", L"ITEM"), kEquivalent);
    EXPECT_EQ(compare(L"IB", L"ic"), kLess);
    EXPECT_EQ(compare(L"ib", L"IC"), kLess);
}

TEST(SortOrderingOutsideTurkish, UmlautsSortWithTheirLetters) {
    EXPECT_EQ(compare(L"Mueller", L"M\u00FCller"), kLess);
    EXPECT_EQ(compare(L"Muller", L"M\u00FCller"), kLess);
    EXPECT_EQ(compare(L"M\u00FCller", L"Mulles"), kLess);
    EXPECT_EQ(compare(L"\u00D6l", L"Ost"), kLess);
    EXPECT_EQ(compare(L"STRASSE", L"Stra\u00DFe"), kLess);
    EXPECT_EQ(compare(L"Stra\u00DFe", L"Strat"), kLess);
}

TEST(SortOrderingInTurkish, TheDottedAndTheDotlessIAreDifferentLetters) {
    EXPECT_EQ(compare(L"i", L"I"), kGreater);
    EXPECT_EQ(compare(L"i", L"\u0130"), kEquivalent);
    EXPECT_EQ(compare(L"\u0131", L"I"), kEquivalent);
    EXPECT_EQ(compare(L"IZ", L"ia"), kLess);
}

TEST(SortOrderingInTurkish, LettersWithMarksComeAfterAllOfTheirLetter) {
    EXPECT_EQ(compare(L"\u00F6a", L"oz"), kGreater);
    EXPECT_EQ(compare(L"\u00E7a", L"cz"), kGreater);
    EXPECT_EQ(compare(L"\u015Fa", L"sz"), kGreater);
    EXPECT_EQ(compare(L"\u00F6a", L"pa"), kLess);
}

} // namespace
