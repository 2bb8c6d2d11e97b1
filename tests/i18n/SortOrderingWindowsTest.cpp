// How the comparison of Windows differs from ICU's.
#include <corvane/workbench/i18n/SortOrdering.hpp>

#include <gtest/gtest.h>

#include <compare>
#include <string_view>

namespace {

std::weak_ordering compare(std::wstring_view left, std::wstring_view right) {
    return corvane::workbench::i18n::SortOrdering()(left, right);
}

TEST(SortOrderingWindows, HyphensCountOnlyAmongOtherwiseEqualTexts) {
    EXPECT_EQ(compare(L"coa", L"co-z"), std::weak_ordering::less);
    EXPECT_NE(compare(L"co-op", L"coop"), std::weak_ordering::equivalent);
}

} // namespace
