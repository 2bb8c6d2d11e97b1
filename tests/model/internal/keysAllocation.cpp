#include "countedAllocations.hpp"
#include <corvane/workbench/model/internal/keys.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace {

using corvane::tests::allocationCount;
namespace keys = corvane::workbench::model::internal;

// Long enough that no part of it fits into a string without memory of its own.
constexpr std::string_view kKey =
    "a.plant.[with.a.very.long.name.that.holds.dots].and.a.member.[whose.name.is.long.as.well]";

TEST(KeyAllocation, SplittingAViewAllocatesNothing) {
    const std::size_t before = allocationCount();
    const auto component = keys::parseKeyComponent(kKey, kKey.begin());
    const auto iterators = keys::splitMemberKey(kKey, kKey.begin());
    const auto views = keys::splitMemberKey(kKey);
    EXPECT_EQ(allocationCount(), before);
    EXPECT_EQ(*component, '.');
    EXPECT_TRUE(iterators.second.has_value());
    EXPECT_TRUE(views.second.has_value());
}

TEST(KeyAllocation, SplittingAnOwnedKeyAllocatesTheMemberNameAlone) {
    std::string key(kKey);
    const std::size_t before = allocationCount();
    const auto parts = keys::splitMemberKey(std::move(key));
    EXPECT_EQ(allocationCount(), before + 1);
    EXPECT_EQ(parts.second, "[whose.name.is.long.as.well]");
}

TEST(KeyAllocation, SplittingAnOwnedKeyWithoutMemberAllocatesNothing) {
    std::string key = "[a.single.component.that.does.not.fit.into.the.string.itself]";
    const std::size_t before = allocationCount();
    const auto parts = keys::splitMemberKey(std::move(key));
    EXPECT_EQ(allocationCount(), before);
    EXPECT_FALSE(parts.second.has_value());
}

TEST(KeyAllocation, TheCounterCounts) {
    const std::size_t before = allocationCount();
    const std::string copy(kKey);
    EXPECT_EQ(allocationCount(), before + 1);
    EXPECT_EQ(copy, kKey);
}

} // namespace
