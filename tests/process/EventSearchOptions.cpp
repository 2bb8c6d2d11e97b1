#include <corvane/workbench/process/EventSearchOptions.hpp>

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <type_traits>

namespace {

using corvane::workbench::process::EventSearchOptions;

static_assert(std::is_aggregate_v<EventSearchOptions>);
static_assert(std::is_trivially_copyable_v<EventSearchOptions>);
static_assert(sizeof(EventSearchOptions) == 2);

struct Bytes {
    std::uint8_t first;
    std::uint8_t second;
};

TEST(EventSearchOptions, NothingIsSetByDefault) {
    EXPECT_FALSE(EventSearchOptions().includeAttributes);
    EXPECT_FALSE(EventSearchOptions().forwardedFlag);
}

TEST(EventSearchOptions, IncludeAttributesIsTheFirstByteAndTheForwardedFlagTheSecond) {
    const auto attributes = std::bit_cast<Bytes>(EventSearchOptions{.includeAttributes = true});
    EXPECT_EQ(attributes.first, 1);
    EXPECT_EQ(attributes.second, 0);
    const auto forwarded = std::bit_cast<Bytes>(EventSearchOptions{.forwardedFlag = true});
    EXPECT_EQ(forwarded.first, 0);
    EXPECT_EQ(forwarded.second, 1);
}

TEST(EventSearchOptions, OptionsAreEqualWhenBothFlagsAre) {
    EXPECT_EQ((EventSearchOptions{true, false}), (EventSearchOptions{true, false}));
    EXPECT_NE((EventSearchOptions{true, false}), (EventSearchOptions{true, true}));
    EXPECT_NE((EventSearchOptions{true, false}), (EventSearchOptions{false, false}));
}

} // namespace
