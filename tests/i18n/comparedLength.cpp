#include "../../src/i18n/comparedLength.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

using corvane::workbench::i18n::comparedLength;

TEST(ComparedLength, ALengthThatFitsIsComparedWhole) {
    EXPECT_EQ(comparedLength(0), 0);
    EXPECT_EQ(comparedLength(2147483647), 2147483647);
}

TEST(ComparedLength, ALongerTextIsComparedByItsFirst2147483647CodeUnits) {
    EXPECT_EQ(comparedLength(2147483648), 2147483647);
    EXPECT_EQ(comparedLength(4294967296), 2147483647);
    EXPECT_EQ(comparedLength(std::numeric_limits<std::size_t>::max()), 2147483647);
}

} // namespace
