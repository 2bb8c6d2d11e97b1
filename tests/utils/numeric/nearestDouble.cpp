#include "numeric/nearestDouble.hpp"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

namespace {

using corvane::utils::numeric::nearestDouble;

/// What the standard library reads from the same number.
double judged(std::uint64_t digits, int exponent) {
    const std::string text = std::to_string(digits) + "e" + std::to_string(exponent);
    double number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    EXPECT_EQ(result.ptr, text.data() + text.size());
    return number;
}

TEST(NearestDouble, AnswersTheNumbersThatPeopleWrite) {
    EXPECT_EQ(nearestDouble(0, 0), 0.0);
    EXPECT_EQ(nearestDouble(0, 100'000), 0.0);
    EXPECT_EQ(nearestDouble(1, 0), 1.0);
    EXPECT_EQ(nearestDouble(5, -1), 0.5);
    EXPECT_EQ(nearestDouble(1, -1), 0.1);
    EXPECT_EQ(nearestDouble(125, -2), 1.25);
    EXPECT_EQ(nearestDouble(1, 22), 1e22);
    EXPECT_EQ(nearestDouble(1, -22), 1e-22);
    EXPECT_EQ(nearestDouble(1, 27), 1e27);
    EXPECT_EQ(nearestDouble(1, -27), 1e-27);
    EXPECT_EQ(nearestDouble(65'613'616'999'999'977, -15), 65.613616999999977);
    EXPECT_EQ(nearestDouble(std::numeric_limits<std::uint64_t>::max(), 0), 18446744073709551615.0);
}

TEST(NearestDouble, LeavesNumbersOfOtherMagnitudesToOthers) {
    EXPECT_FALSE(nearestDouble(1, 28));
    EXPECT_FALSE(nearestDouble(1, -28));
    EXPECT_FALSE(nearestDouble(1, 100'000));
    EXPECT_FALSE(nearestDouble(1, -100'000));
}

TEST(NearestDouble, RoundsHalvesToTheEvenSignificandOrDoesNotAnswer) {
    // 2^53 + 1 and its neighbours: the first two odd numbers lie between two doubles.
    for (std::uint64_t digits = 9'007'199'254'740'991; digits != 9'007'199'254'741'000; ++digits) {
        if (const auto number = nearestDouble(digits, 0)) {
            EXPECT_EQ(*number, judged(digits, 0)) << digits;
        }
    }
    // The halves 5629499534213117.5 and 5629499534213112.5, times 16.
    EXPECT_EQ(nearestDouble(9'007'199'254'740'988, 1), 90'071'992'547'409'888.0);
    EXPECT_EQ(nearestDouble(9'007'199'254'740'980, 1), 90'071'992'547'409'792.0);
    // 2^52 + 0.5: a double does not hold the digits.
    EXPECT_FALSE(nearestDouble(45'035'996'273'704'965, -1));
}

TEST(NearestDouble, IsThatOfTheStandardLibraryForRandomNumbers) {
    std::mt19937_64 random(20240511);
    constexpr int kRounds = 200'000;
    int answered = 0;
    for (int round = 0; round != kRounds; ++round) {
        const std::uint64_t digits = random() >> (random() % 64);
        const int exponent = static_cast<int>(random() % 55) - 27;
        const auto number = nearestDouble(digits, exponent);
        if (number) {
            ++answered;
            ASSERT_EQ(std::bit_cast<std::uint64_t>(*number),
                      std::bit_cast<std::uint64_t>(judged(digits, exponent)))
                << digits << "e" << exponent;
        }
    }
    // About one in five hundred is too close to call.
    EXPECT_GT(answered, kRounds * 99 / 100);
}

TEST(NearestDouble, IsThatOfTheStandardLibraryBesideEveryHalf) {
    // Numbers of 19 digits just below, at and above the middle between two doubles.
    std::mt19937_64 random(20240512);
    for (int round = 0; round != 20'000; ++round) {
        const double below = std::bit_cast<double>((std::uint64_t{0x43D} << 52U) +
                                                   (random() & ((std::uint64_t{1} << 52U) - 1)));
        const std::uint64_t half = static_cast<std::uint64_t>(below) + 512;
        for (std::uint64_t digits = half - 2; digits != half + 3; ++digits) {
            for (const int exponent : {0, 1, -1, 9, -9, 20, -20, 27, -27}) {
                if (const auto number = nearestDouble(digits, exponent)) {
                    ASSERT_EQ(*number, judged(digits, exponent)) << digits << "e" << exponent;
                }
            }
        }
    }
}

} // namespace
