#include "numeric/digits.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>

namespace {

using namespace corvane::utils::numeric;

template <class T>
class Digits16 : public testing::Test {
protected:
    static std::string written(std::uint64_t first, std::uint64_t second) {
        std::string text(16, ' ');
        T(first, second).write(text.data());
        return text;
    }
};

/// The one that is used, and the one of every machine.
using Implementations = testing::Types<SixteenDigits, WordDigits>;
TYPED_TEST_SUITE(Digits16, Implementations);

TYPED_TEST(Digits16, AreWrittenWithZerosInFront) {
    EXPECT_EQ(this->written(0, 0), "0000000000000000");
    EXPECT_EQ(this->written(12'345'678, 90'123'456), "1234567890123456");
    EXPECT_EQ(this->written(1, 10'000'000), "0000000110000000");
    EXPECT_EQ(this->written(99'999'999, 99'999'999), "9999999999999999");
}

TYPED_TEST(Digits16, AreThoseOfTheStandardLibrary) {
    const auto padded = [](std::uint64_t number) {
        const std::string text = std::to_string(number);
        return std::string(8 - text.size(), '0') + text;
    };
    std::mt19937_64 random(20240511);
    for (int round = 0; round != 20'000; ++round) {
        const std::uint64_t first = random() % 100'000'000;
        const std::uint64_t second = random() % 100'000'000;
        ASSERT_EQ(this->written(first, second), padded(first) + padded(second));
    }
    // All that four digits can be, in both halves of both numbers.
    for (std::uint64_t number = 0; number != 10'000; ++number) {
        const std::uint64_t high = number * 10'000 + 9'999 - number;
        const std::uint64_t low = (9'999 - number) * 10'000 + number;
        ASSERT_EQ(this->written(high, low), padded(high) + padded(low));
    }
}

TYPED_TEST(Digits16, AreCountedUpToTheLastThatIsNotZero) {
    EXPECT_EQ(TypeParam(99'999'999, 99'999'999).countUpToLast(), 16U);
    EXPECT_EQ(TypeParam(0, 1).countUpToLast(), 16U);
    EXPECT_EQ(TypeParam(0, 20).countUpToLast(), 15U);
    EXPECT_EQ(TypeParam(0, 10'000'000).countUpToLast(), 9U);
    EXPECT_EQ(TypeParam(1, 0).countUpToLast(), 8U);
    EXPECT_EQ(TypeParam(12'300'000, 0).countUpToLast(), 3U);
    EXPECT_EQ(TypeParam(10'000'000, 0).countUpToLast(), 1U);
}

} // namespace
