#include <corvane/workbench/io/Direction.hpp>

#include <corvane/utils/core/Flags.hpp>

#include <gtest/gtest.h>

namespace {

using corvane::workbench::io::Direction;
using Directions = corvane::utils::core::Flags<Direction>;

TEST(Direction, ReadingIsTheBitOfValueOneAndWritingTheBitOfValueTwo) {
    EXPECT_EQ(Directions(Direction::Read).bits(), 1u);
    EXPECT_EQ(Directions(Direction::Write).bits(), 2u);
    EXPECT_EQ((Directions{Direction::Read, Direction::Write}).bits(), 3u);
}

TEST(Direction, ASetOfDirectionsHasThirtyTwoBits) {
    static_assert(sizeof(Directions) == 4);
    EXPECT_EQ(Directions(static_cast<Direction>(31)).bits(), 0x80000000u);
}

TEST(Direction, AnEmptySetHasNoDirection) {
    EXPECT_EQ(Directions().bits(), 0u);
    EXPECT_TRUE(Directions().none());
}

} // namespace
