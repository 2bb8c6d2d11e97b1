#include <corvane/workbench/data/DataType.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <type_traits>

namespace {

using corvane::workbench::data::DataType;

static_assert(std::is_trivially_copyable_v<DataType>);
static_assert(std::is_same_v<decltype(DataType::kind), std::uint32_t>);
static_assert(std::is_same_v<decltype(DataType::size), std::uint32_t>);
static_assert(sizeof(DataType) == 8);

TEST(DataType, TheNamedConstantsHaveThePairsOfTheRuntime) {
    EXPECT_EQ(DataType::kText, (DataType{4, 8}));
    EXPECT_EQ(DataType::kTimeStamp, (DataType{5, 0}));
    EXPECT_EQ(DataType::kUuid, (DataType{6, 0}));
    EXPECT_EQ(DataType::kQuality, (DataType{7, 0}));
    EXPECT_EQ(DataType::kElementCategory, (DataType{8, 0}));
    EXPECT_EQ(DataType::kDeviceState, (DataType{0, 1}));
    EXPECT_EQ(DataType::kAny, (DataType{11, 0}));
}

TEST(DataType, TwoTypesAreEqualWhenBothFieldsAre) {
    EXPECT_TRUE((DataType{3, 4} == DataType{3, 4}));
    EXPECT_FALSE((DataType{3, 4} == DataType{3, 5}));
    EXPECT_FALSE((DataType{3, 4} == DataType{2, 4}));
}

TEST(DataType, PairsThatTheLibraryDoesNotKnowAreCarriedThroughUnchanged) {
    const DataType unknown{4294967295, 4294967294};
    const DataType copy = unknown;
    EXPECT_EQ(copy.kind, 4294967295);
    EXPECT_EQ(copy.size, 4294967294);
}

} // namespace
