// The comparison outside Windows is an order under every language: whoever sorts by it gets the
// same list whatever the list was before.
#include "mixedTexts.hpp"
#include <corvane/workbench/i18n/SortKey.hpp>
#include <corvane/workbench/i18n/SortOrdering.hpp>

#include <gtest/gtest.h>

#include <compare>
#include <cstddef>
#include <string>
#include <vector>

namespace {

using corvane::tests::mixedTexts;
using corvane::workbench::i18n::SortKey;
using corvane::workbench::i18n::SortOrdering;

class StrictWeakOrder : public ::testing::Test {
protected:
    const std::vector<std::wstring> texts = mixedTexts(2000);

    void reportPair(std::size_t left, std::size_t right) const {
        ADD_FAILURE() << ::testing::PrintToString(texts[left]) << " and "
                      << ::testing::PrintToString(texts[right]);
    }
};

// A comparison is a strict weak order exactly if it is that of numbers that can be given to the
// texts; the only numbers that can do are how many texts come before each.
TEST_F(StrictWeakOrder, HoldsForAllPairsOfTwoThousandTexts) {
    const std::size_t count = texts.size();
    std::vector<std::weak_ordering> results;
    results.reserve(count * count);
    std::vector<std::size_t> before(count, 0);
    for (std::size_t left = 0; left < count; ++left) {
        for (std::size_t right = 0; right < count; ++right) {
            results.push_back(SortOrdering()(texts[left], texts[right]));
            before[right] += results.back() < 0 ? 1U : 0U;
        }
    }
    for (std::size_t left = 0; left < count; ++left) {
        for (std::size_t right = 0; right < count; ++right) {
            const std::weak_ordering expected = before[left] <=> before[right];
            if (results[left * count + right] != expected) {
                reportPair(left, right);
                return;
            }
        }
    }
}

TEST_F(StrictWeakOrder, IsThatOfTheSortKeys) {
    std::vector<SortKey> keys;
    for (const std::wstring& text : texts) {
        keys.emplace_back(text);
    }
    for (std::size_t left = 0; left < texts.size(); ++left) {
        for (std::size_t right = 0; right < texts.size(); ++right) {
            if (SortOrdering()(texts[left], texts[right]) != (keys[left] <=> keys[right])) {
                reportPair(left, right);
                return;
            }
        }
    }
}

} // namespace
