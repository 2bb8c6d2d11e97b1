#include <corvane/workbench/bindings/functional.hpp>

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <span>
#include <type_traits>

namespace corvane::workbench::bindings::functional {
namespace {

static_assert(sizeof(Offset<int>) == sizeof(int) && sizeof(Offset<double>) == sizeof(double));
static_assert(!std::is_convertible_v<int, Offset<int>>);
static_assert(std::is_same_v<int, decltype(Offset<int>(1)(std::span<const int>(), 0))>);
static_assert(std::is_same_v<double, decltype(Offset<int>(1)(std::span<const double>(), 0))>);

TEST(Offset, AnEmptyListStartsWithZero) {
    EXPECT_EQ(Offset<int>(5)(std::span<const int>(), 0), 0);
    EXPECT_EQ(Offset<int>(5)(std::span<const double>(), 0), 0.0);
    EXPECT_EQ(Offset<double>(0.5)(std::span<const double>(), 0), 0.0);
}

TEST(Offset, AnEntryInFrontPrecedesTheFirstByOneStep) {
    constexpr std::array values{10, 20};
    EXPECT_EQ(Offset<int>(5)(std::span<const int>(values), 0), 5);
    constexpr std::array doubles{1.0, 2.0};
    EXPECT_EQ(Offset<int>(5)(std::span<const double>(doubles), 0), -4.0);
    EXPECT_EQ(Offset<double>(0.25)(std::span<const double>(doubles), 0), 0.75);
}

TEST(Offset, AnEntryBehindAnotherContinuesItByOneStep) {
    constexpr std::array values{10, 20};
    EXPECT_EQ(Offset<int>(5)(std::span<const int>(values), 1), 15);
    EXPECT_EQ(Offset<int>(5)(std::span<const int>(values), 2), 25);
    constexpr std::array doubles{1.5, 2.5};
    EXPECT_EQ(Offset<int>(5)(std::span<const double>(doubles), 1), 6.5);
    EXPECT_EQ(Offset<double>(0.25)(std::span<const double>(doubles), 2), 2.75);
}

TEST(Offset, WholeNumbersWrapAroundOnOverflow) {
    constexpr int highest = std::numeric_limits<int>::max();
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr std::array values{lowest, highest};
    EXPECT_EQ(Offset<int>(1)(std::span<const int>(values), 2), lowest);
    EXPECT_EQ(Offset<int>(1)(std::span<const int>(values), 0), highest);
    EXPECT_EQ(Offset<int>(lowest)(std::span<const int>(values), 0), 0);
}

TEST(Offset, AWholeOffsetStepsExactlyThroughDoubles) {
    constexpr std::array doubles{0.0};
    EXPECT_EQ(Offset<int>(std::numeric_limits<int>::max())(std::span<const double>(doubles), 1),
              2147483647.0);
}

TEST(Offset, AssignmentCopiesTheOffset) {
    constexpr std::array values{10};
    Offset<int> offset(5);
    offset = Offset<int>(7);
    EXPECT_EQ(offset(std::span<const int>(values), 1), 17);
    Offset<double> fraction(0.5);
    const Offset<double> other(0.25);
    fraction = other;
    constexpr std::array doubles{1.0};
    EXPECT_EQ(fraction(std::span<const double>(doubles), 1), 1.25);
}

} // namespace
} // namespace corvane::workbench::bindings::functional
