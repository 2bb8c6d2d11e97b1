#include "numeric/multiply.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <random>

namespace {

using corvane::utils::numeric::multiply;
using corvane::utils::numeric::multiplyByHalves;
using corvane::utils::numeric::Wide;

constexpr std::uint64_t kMax = std::numeric_limits<std::uint64_t>::max();

static_assert(multiply(kMax, kMax) == Wide{kMax - 1, 1});
static_assert(multiplyByHalves(kMax, kMax) == Wide{kMax - 1, 1});

TEST(Multiply, CarriesIntoTheHighHalf) {
    for (const auto product : {multiply, multiplyByHalves}) {
        EXPECT_EQ(product(0, kMax), (Wide{0, 0}));
        EXPECT_EQ(product(1, kMax), (Wide{0, kMax}));
        EXPECT_EQ(product(2, kMax), (Wide{1, kMax - 1}));
        EXPECT_EQ(product(0x1'0000'0000U, 0x1'0000'0000U), (Wide{1, 0}));
        EXPECT_EQ(product(0xFFFF'FFFFU, 0xFFFF'FFFFU), (Wide{0, 0xFFFF'FFFE'0000'0001U}));
        EXPECT_EQ(product(0x1'FFFF'FFFFU, 0x1'FFFF'FFFFU), (Wide{3, 0xFFFF'FFFC'0000'0001U}));
        // 12345678901234567890 × 9876543210987654321
        EXPECT_EQ(product(12'345'678'901'234'567'890U, 9'876'543'210'987'654'321U),
                  (Wide{6'609'981'178'781'634'653U, 133'124'662'968'603'442U}));
    }
}

TEST(Multiply, AgreesWithTheProductByHalves) {
    std::mt19937_64 random(20240508);
    for (int round = 0; round != 10'000; ++round) {
        const std::uint64_t left = random() >> (random() % 64);
        const std::uint64_t right = random() >> (random() % 64);
        ASSERT_EQ(multiply(left, right), multiplyByHalves(left, right)) << left << " * " << right;
    }
}

} // namespace
