// How the comparison of Windows differs from ICU's.
#include <corvane/workbench/i18n/SortOrdering.hpp>

#include <gtest/gtest.h>

#include <compare>
#include <string_view>

namespace {

std::weak_ordering compare(std::wstring_view left, std::wstring_view right) {
    return corvane::workbench::i18n::SortOrdering()(left, right);
}

TEST(SortOrderingWindows, HyphensAndApostrophesCountOnlyAmongOtherwiseEqualTexts) {
    EXPECT_EQ(compare(L"coa", L"co-z"), std::weak_ordering::less);
    EXPECT_EQ(compare(L"coop", L"co-op"), std::weak_ordering::less);
    EXPECT_EQ(compare(L"its", L"it's"), std::weak_ordering::less);
    EXPECT_EQ(compare(L"it's", L"itt"), std::weak_ordering::less);
}

TEST(SortOrderingWindows, OfTwoEqualNumbersTheOneWithMoreLeadingZerosComesFirst) {
    EXPECT_EQ(compare(L"file01", L"file1"), std::weak_ordering::less);
    EXPECT_EQ(compare(L"file1", L"file002"), std::weak_ordering::less);
}

} // namespace
