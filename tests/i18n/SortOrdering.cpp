// What every system must give under every language.
#include <corvane/workbench/i18n/SortOrdering.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <compare>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using corvane::workbench::i18n::SortOrdering;

static_assert(std::is_empty_v<SortOrdering>);
static_assert(
    std::is_same_v<decltype(std::declval<const SortOrdering&>()(L"", L"")), std::weak_ordering>);

std::weak_ordering compare(std::wstring_view left, std::wstring_view right) {
    return SortOrdering()(left, right);
}

void expectLess(std::wstring_view left, std::wstring_view right) {
    EXPECT_EQ(compare(left, right), std::weak_ordering::less)
        << ::testing::PrintToString(left) << ::testing::PrintToString(right);
    EXPECT_EQ(compare(right, left), std::weak_ordering::greater)
        << ::testing::PrintToString(right) << ::testing::PrintToString(left);
}

void expectEquivalent(std::wstring_view left, std::wstring_view right) {
    EXPECT_EQ(compare(left, right), std::weak_ordering::equivalent)
        << ::testing::PrintToString(left) << ::testing::PrintToString(right);
    EXPECT_EQ(compare(right, left), std::weak_ordering::equivalent)
        << ::testing::PrintToString(right) << ::testing::PrintToString(left);
}

TEST(SortOrdering, CaseDoesNotDecide) {
    expectEquivalent(L"a", L"A");
    expectEquivalent(L"valve", L"VALVE");
    expectEquivalent(L"\u00E4", L"\u00C4");
    expectEquivalent(L"\u0434", L"\u0414");
    expectLess(L"a", L"B");
    expectLess(L"A", L"b");
}

TEST(SortOrdering, RunsOfDigitsAreComparedByTheirValue) {
    expectLess(L"file9", L"file10");
    expectLess(L"Item 2", L"Item 10");
    expectLess(L"Item 2", L"ITEM 10");
    expectLess(L"x2y10", L"x10y2");
    expectLess(L"a1b9", L"a1b10");
    expectLess(L"a999999999999999998", L"a999999999999999999");
    expectLess(L"a99999999999999999", L"a100000000000000000");
}

TEST(SortOrdering, EqualTextsAreEquivalent) {
    expectEquivalent(L"", L"");
    expectEquivalent(L"pump 7", L"pump 7");
    expectEquivalent(std::wstring_view(), L"");
}

TEST(SortOrdering, ATextComesBeforeItsContinuation) {
    expectLess(L"", L"a");
    expectLess(std::wstring_view(), L"a");
    expectLess(L"pump", L"pumps");
    expectLess(L"pump", L"pump 1");
}

TEST(SortOrdering, AccentsDecideOnlyAmongEqualLetters) {
    expectLess(L"resume", L"r\u00E9sum\u00E9");
    expectLess(L"r\u00E9sum\u00E9", L"resumf");
}

TEST(SortOrdering, DigitsComeBeforeLetters) {
    expectLess(L"1", L"a");
}

TEST(SortOrdering, CharactersOutsideTheBasicPlaneAreSurrogatePairs) {
    const std::wstring pair = {0xD83D, 0xDE00};
    expectEquivalent(pair, pair);
    expectLess(L"a" + pair, L"b");
}

TEST(SortOrdering, LongTextsAreComparedToTheirEnd) {
    expectLess(std::wstring(5000, L'x') + L"9", std::wstring(5000, L'x') + L"10");
    expectEquivalent(std::wstring(5000, L'x'), std::wstring(5000, L'X'));
    expectLess(std::wstring(256, L'x'), std::wstring(257, L'x'));
}

TEST(SortOrdering, AViewIsComparedOnlyUpToItsEnd) {
    const std::wstring text = L"pumpZZ";
    expectEquivalent(std::wstring_view(text).substr(0, 4), L"pump");
}

TEST(SortOrdering, NamesSortAsAUserExpects) {
    std::vector<std::wstring> names = {L"Valve 10", L"pump", L"valve 9", L"Motor", L"valve 1"};
    std::ranges::sort(names, [](const std::wstring& left, const std::wstring& right) {
        return SortOrdering()(left, right) < 0;
    });
    EXPECT_EQ(names,
              (std::vector<std::wstring>{L"Motor", L"pump", L"valve 1", L"valve 9", L"Valve 10"}));
}

TEST(SortOrdering, AssignmentDoesNothingAndReturnsTheTarget) {
    SortOrdering target;
    SortOrdering source;
    EXPECT_EQ(&(target = source), &target);
    EXPECT_EQ(&(target = std::move(source)), &target);
}

} // namespace
