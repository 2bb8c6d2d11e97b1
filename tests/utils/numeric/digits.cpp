#include "numeric/digits.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>

namespace {

using namespace corvane::utils::numeric;

std::string written(std::uint64_t first, std::uint64_t second) {
    std::string text(16, ' ');
    SixteenDigits(first, second).write(text.data());
    return text;
}

TEST(SixteenDigits, AreWrittenWithZerosInFront) {
    EXPECT_EQ(written(0, 0), "0000000000000000");
    EXPECT_EQ(written(12'345'678, 90'123'456), "1234567890123456");
    EXPECT_EQ(written(1, 10'000'000), "0000000110000000");
    EXPECT_EQ(written(99'999'999, 99'999'999), "9999999999999999");
}

TEST(SixteenDigits, AreThoseOfTheStandardLibrary) {
    const auto padded = [](std::uint64_t number) {
        const std::string text = std::to_string(number);
        return std::string(8 - text.size(), '0') + text;
    };
    std::mt19937_64 random(20240511);
    for (int round = 0; round != 20'000; ++round) {
        const std::uint64_t first = random() % 100'000'000;
        const std::uint64_t second = random() % 100'000'000;
        ASSERT_EQ(written(first, second), padded(first) + padded(second));
    }
    // All that four digits can be, in both halves of both numbers.
    for (std::uint64_t number = 0; number != 10'000; ++number) {
        const std::uint64_t high = number * 10'000 + 9'999 - number;
        const std::uint64_t low = (9'999 - number) * 10'000 + number;
        ASSERT_EQ(written(high, low), padded(high) + padded(low));
    }
}

TEST(SixteenDigits, AreCountedUpToTheLastThatIsNotZero) {
    EXPECT_EQ(SixteenDigits(99'999'999, 99'999'999).countUpToLast(), 16U);
    EXPECT_EQ(SixteenDigits(0, 1).countUpToLast(), 16U);
    EXPECT_EQ(SixteenDigits(0, 20).countUpToLast(), 15U);
    EXPECT_EQ(SixteenDigits(0, 10'000'000).countUpToLast(), 9U);
    EXPECT_EQ(SixteenDigits(1, 0).countUpToLast(), 8U);
    EXPECT_EQ(SixteenDigits(12'300'000, 0).countUpToLast(), 3U);
    EXPECT_EQ(SixteenDigits(10'000'000, 0).countUpToLast(), 1U);
}

} // namespace
