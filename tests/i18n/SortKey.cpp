// What every system must give under every language.
#include <corvane/workbench/i18n/SortKey.hpp>

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

using corvane::workbench::i18n::SortKey;

static_assert(std::is_same_v<std::compare_three_way_result_t<SortKey>, std::weak_ordering>);
static_assert(std::totally_ordered<SortKey>);
static_assert(std::is_nothrow_move_constructible_v<SortKey>);
static_assert(!std::is_convertible_v<std::wstring_view, SortKey>);

TEST(SortKey, IgnoresCaseAndReadsNumbers) {
    EXPECT_EQ(SortKey(L"valve"), SortKey(L"VALVE"));
    EXPECT_LT(SortKey(L"Item 2"), SortKey(L"item 10"));
    EXPECT_LT(SortKey(L"resume"), SortKey(L"r\u00E9sum\u00E9"));
    EXPECT_LT(SortKey(L"r\u00E9sum\u00E9"), SortKey(L"resumf"));
}

TEST(SortKey, OfTheEmptyTextIsTheFirst) {
    EXPECT_EQ(SortKey(L""), SortKey(std::wstring_view()));
    EXPECT_LT(SortKey(L""), SortKey(L"a"));
    EXPECT_LT(SortKey(L""), SortKey(L" "));
}

TEST(SortKey, OfALongTextLooksAtItsEnd) {
    EXPECT_LT(SortKey(std::wstring(5000, L'x') + L"9"), SortKey(std::wstring(5000, L'x') + L"10"));
    EXPECT_EQ(SortKey(std::wstring(5000, L'x')), SortKey(std::wstring(5000, L'X')));
}

TEST(SortKey, OfAViewLooksOnlyUpToItsEnd) {
    const std::wstring text = L"pumpZZ";
    EXPECT_EQ(SortKey(std::wstring_view(text).substr(0, 4)), SortKey(L"pump"));
}

TEST(SortKey, IsCopiedAndMovedAsAValue) {
    SortKey key(L"pump");
    SortKey copy = key;
    EXPECT_EQ(copy, key);
    const SortKey moved = std::move(copy);
    EXPECT_EQ(moved, key);
    key = SortKey(L"valve");
    EXPECT_LT(moved, key);
}

TEST(SortKey, SortsNamesAsAUserExpects) {
    std::vector<std::wstring> names = {L"Valve 10", L"pump", L"valve 9", L"Motor", L"valve 1"};
    std::ranges::sort(names, {}, [](const std::wstring& name) { return SortKey(name); });
    EXPECT_EQ(names,
              (std::vector<std::wstring>{L"Motor", L"pump", L"valve 1", L"valve 9", L"Valve 10"}));
}

TEST(SortKey, ComparesAsTheSortOrderingDoes) {
    const std::vector<std::wstring> texts = {
        L"",       L" ",      L"1",      L"2",     L"10",      L"a",        L"A",
        L"a1",     L"A2",     L"a10",    L"ab",    L"Valve 9", L"valve 10", L"r\u00E9sum\u00E9",
        L"resume", L"co-op",  L"coop",   L"it's",  L"its",     L"\u00FC",   L"u",
        L"\u0434", L"\u0414", L"file01", L"file1", L"\u6F22"};
    for (const std::wstring& left : texts) {
        for (const std::wstring& right : texts) {
            EXPECT_EQ(SortKey(left) <=> SortKey(right),
                      corvane::workbench::i18n::SortOrdering()(left, right))
                << ::testing::PrintToString(left) << ::testing::PrintToString(right);
        }
    }
}

} // namespace
