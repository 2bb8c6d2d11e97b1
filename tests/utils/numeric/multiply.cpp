#include "numeric/multiply.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <random>

namespace {

using corvane::utils::numeric::multiply;
using corvane::utils::numeric::Wide;

constexpr std::uint64_t kMax = std::numeric_limits<std::uint64_t>::max();

static_assert(multiply(kMax, kMax) == Wide{kMax - 1, 1});

TEST(Multiply, CarriesIntoTheHighHalf) {
    EXPECT_EQ(multiply(0, kMax), (Wide{0, 0}));
    EXPECT_EQ(multiply(1, kMax), (Wide{0, kMax}));
    EXPECT_EQ(multiply(2, kMax), (Wide{1, kMax - 1}));
    EXPECT_EQ(multiply(0x1'0000'0000U, 0x1'0000'0000U), (Wide{1, 0}));
    EXPECT_EQ(multiply(0xFFFF'FFFFU, 0xFFFF'FFFFU), (Wide{0, 0xFFFF'FFFE'0000'0001U}));
    EXPECT_EQ(multiply(0x1'FFFF'FFFFU, 0x1'FFFF'FFFFU), (Wide{3, 0xFFFF'FFFC'0000'0001U}));
    // 12345678901234567890 × 9876543210987654321
    EXPECT_EQ(multiply(12'345'678'901'234'567'890U, 9'876'543'210'987'654'321U),
              (Wide{6'609'981'178'781'634'653U, 133'124'662'968'603'442U}));
}

TEST(Multiply, HasTheRemaindersOfTheProduct) {
    // The low half is the product modulo 2^64; modulo 2^64 - 1 both halves together are.
    std::mt19937_64 random(20240508);
    const auto sumModulo = [](std::uint64_t left, std::uint64_t right) {
        const std::uint64_t sum = left + right;
        const std::uint64_t folded = sum + (sum < left ? 1 : 0);
        return folded == kMax ? 0 : folded;
    };
    const auto productModulo = [&](std::uint64_t left, std::uint64_t right) {
        std::uint64_t product = 0;
        for (; right != 0; right >>= 1U) {
            product = (right & 1U) != 0 ? sumModulo(product, left) : product;
            left = sumModulo(left, left);
        }
        return product;
    };
    for (int round = 0; round != 10'000; ++round) {
        const std::uint64_t left = random() >> (random() % 64);
        const std::uint64_t right = random() >> (random() % 64);
        const Wide product = multiply(left, right);
        ASSERT_EQ(product.low, left * right) << left << " * " << right;
        ASSERT_EQ(sumModulo(product.high, product.low), productModulo(left, right))
            << left << " * " << right;
    }
}

} // namespace
