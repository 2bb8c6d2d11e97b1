#include <corvane/utils/numeric/format.hpp>

#include <corvane/utils/numeric/parse.hpp>

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <type_traits>

namespace {

using corvane::utils::numeric::format;
using corvane::utils::numeric::parse;
using corvane::utils::string::BasicStaticString;

static_assert(std::is_same_v<decltype(format(std::int64_t{})), BasicStaticString<char, 20>>);
static_assert(std::is_same_v<decltype(format(std::uint64_t{})), BasicStaticString<char, 20>>);
static_assert(std::is_same_v<decltype(format(double{})), BasicStaticString<char, 24>>);

TEST(Format, WritesSignedIntegersUpToBothEnds) {
    EXPECT_EQ(format(std::int64_t{0}), "0");
    EXPECT_EQ(format(std::int64_t{-7}), "-7");
    EXPECT_EQ(format(std::numeric_limits<std::int64_t>::max()), "9223372036854775807");
    EXPECT_EQ(format(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

TEST(Format, WritesUnsignedIntegersUpToTheEnd) {
    EXPECT_EQ(format(std::uint64_t{0}), "0");
    EXPECT_EQ(format(std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
}

TEST(Format, WritesTheShortestTextOfADouble) {
    EXPECT_EQ(format(0.0), "0");
    EXPECT_EQ(format(-0.0), "-0");
    EXPECT_EQ(format(250.0), "250");
    EXPECT_EQ(format(1.5), "1.5");
    EXPECT_EQ(format(0.1), "0.1");
    EXPECT_EQ(format(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(format(1e30), "1e+30");
    EXPECT_EQ(format(100000.0), "1e+05");
    EXPECT_EQ(format(1e-7), "1e-07");
    EXPECT_EQ(format(9007199254740993.0), "9007199254740992");
}

TEST(Format, WritesTheExtremesOfADouble) {
    using Limits = std::numeric_limits<double>;
    EXPECT_EQ(format(Limits::max()), "1.7976931348623157e+308");
    EXPECT_EQ(format(Limits::lowest()), "-1.7976931348623157e+308");
    EXPECT_EQ(format(-Limits::min()), "-2.2250738585072014e-308");
    EXPECT_EQ(format(Limits::denorm_min()), "5e-324");
    EXPECT_EQ(format(Limits::infinity()), "inf");
    EXPECT_EQ(format(-Limits::infinity()), "-inf");
    EXPECT_EQ(format(std::abs(Limits::quiet_NaN())), "nan");
}

TEST(Format, FillsTheCapacityWithTheLongestTexts) {
    EXPECT_EQ(format(std::numeric_limits<std::int64_t>::min()).size(), 20U);
    EXPECT_EQ(format(std::numeric_limits<std::uint64_t>::max()).size(), 20U);
    EXPECT_EQ(format(-std::numeric_limits<double>::min()).size(), 24U);
}

TEST(Format, WritesDoublesThatReadBackAsTheSameNumber) {
    std::mt19937_64 random(20240506);
    int finite = 0;
    for (int round = 0; round != 20000; ++round) {
        const double number = std::bit_cast<double>(random());
        if (!std::isfinite(number)) {
            continue;
        }
        ++finite;
        const auto text = format(number);
        const auto back = parse<double>(text);
        ASSERT_TRUE(back.has_value()) << text.view();
        ASSERT_EQ(std::bit_cast<std::uint64_t>(*back), std::bit_cast<std::uint64_t>(number))
            << text.view();
    }
    EXPECT_GT(finite, 19000);
}

TEST(Format, WritesTheSameAsTheStandardLibrary) {
    std::mt19937_64 random(20240507);
    const auto expectStandardText = [](double number) {
        std::array<char, 32> text{};
        const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
        ASSERT_EQ(format(number).view(),
                  std::string_view(text.data(), static_cast<std::size_t>(end - text.data())));
    };
    for (int round = 0; round != 20000; ++round) {
        // From 2^-24 to 2^64, with fractions that end early and late.
        const std::uint64_t exponent = 1023 - 24 + random() % 88;
        const std::uint64_t zeros = random() % 53;
        const std::uint64_t fraction = (random() >> 12U) >> zeros << zeros;
        const auto number = std::bit_cast<double>((exponent << 52U) | fraction);
        expectStandardText(number);
        expectStandardText(-number);
        // Decimal numbers, and the neighbours of them.
        const double decimal = static_cast<double>(random() % 1'000'000'000) /
                               std::pow(10.0, static_cast<double>(random() % 13));
        expectStandardText(decimal);
        expectStandardText(std::nextafter(decimal, 0.0));
        expectStandardText(std::nextafter(decimal, 1e300));
    }
    for (int exponent = -40; exponent != 70; ++exponent) {
        const double power = std::ldexp(1.0, exponent);
        expectStandardText(power);
        expectStandardText(std::nextafter(power, 0.0));
        expectStandardText(std::nextafter(power, 1e300));
    }
    for (const double number : {0.001, 0.00099999999999999991, 0.00125, 999999999999999.88, 1e15,
                                1.0 / 3.0, 2.0 / 3.0, 9.5, 0.5, 4.9999999999999991}) {
        expectStandardText(number);
    }
}

TEST(Format, WritesTheSameAsTheStandardLibraryForAllMagnitudesOfConfigurations) {
    std::mt19937_64 random(20240509);
    const auto expectStandardText = [](double number) {
        std::array<char, 32> text{};
        const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
        ASSERT_EQ(format(number).view(),
                  std::string_view(text.data(), static_cast<std::size_t>(end - text.data())));
    };
    for (int round = 0; round != 100'000; ++round) {
        // From 2^-12 to 2^52, with all digits that there can be.
        const std::uint64_t exponent = 1023 - 12 + random() % 64;
        expectStandardText(std::bit_cast<double>((exponent << 52U) | (random() >> 12U)));
    }
    // As many digits before the point as there can be, and as many behind it.
    for (double power = 1e-4; power < 1e17; power *= 10) {
        for (double places = 1; places < 1e18; places *= 10) {
            for (const double digits : {1.0, 5.0, 9.0, 12.0, 99.0}) {
                expectStandardText(power + digits / places);
                expectStandardText(power - digits / places);
                expectStandardText(-power - digits / places);
            }
        }
    }
}

TEST(Format, WritesWholePartsAndPlacesOfEveryLength) {
    EXPECT_EQ(format(0.5), "0.5");
    EXPECT_EQ(format(-9.25), "-9.25");
    EXPECT_EQ(format(99.125), "99.125");
    EXPECT_EQ(format(999.0625), "999.0625");
    EXPECT_EQ(format(1000.0625), "1000.0625");
    EXPECT_EQ(format(-999999.03125), "-999999.03125");
    EXPECT_EQ(format(-1000000.03125), "-1000000.03125");
    EXPECT_EQ(format(99999999.015625), "99999999.015625");
    EXPECT_EQ(format(100000000.015625), "100000000.015625");
    EXPECT_EQ(format(-123456789012345.62), "-123456789012345.62");
    EXPECT_EQ(format(999999999999999.9), "999999999999999.9");
    EXPECT_EQ(format(-123456.78901234567), "-123456.78901234567");
    EXPECT_EQ(format(1.0000000000000002), "1.0000000000000002");
    EXPECT_EQ(format(0.12345678901234568), "0.12345678901234568");
    EXPECT_EQ(format(-0.012345678901234568), "-0.012345678901234568");
    EXPECT_EQ(format(0.0012345678901234567), "0.0012345678901234567");
    EXPECT_EQ(format(-0.0010000000000000002), "-0.0010000000000000002");
    EXPECT_EQ(format(0.30000001), "0.30000001");
    EXPECT_EQ(format(0.3000000100000001), "0.3000000100000001");
    EXPECT_EQ(format(0.00000000099), "9.9e-10");
}

TEST(Format, WritesIntegersAsTheStandardLibraryDoes) {
    const auto expectStandardText = [](std::uint64_t number) {
        ASSERT_EQ(format(number), std::to_string(number));
        const auto negated = static_cast<std::int64_t>(0 - number);
        ASSERT_EQ(format(negated), std::to_string(negated));
    };
    for (std::uint64_t number = 0; number != 20'000; ++number) {
        expectStandardText(number);
        expectStandardText(number * 10'000);
        expectStandardText(std::numeric_limits<std::uint64_t>::max() - number);
        expectStandardText((std::uint64_t{1} << 63U) - number);
    }
    std::mt19937_64 random(20240510);
    for (int round = 0; round != 20'000; ++round) {
        expectStandardText(random() >> (random() % 64));
    }
}

TEST(Format, WritesIntegersOfEveryLength) {
    std::uint64_t number = 0;
    std::string text;
    for (char digit = '1'; digit <= '9'; ++digit) {
        number = number * 10 + static_cast<std::uint64_t>(digit - '0');
        text += digit;
        EXPECT_EQ(format(number), text);
        EXPECT_EQ(format(-static_cast<std::int64_t>(number)), "-" + text);
    }
    for (std::uint64_t power = 1, zeros = 0; zeros != 20; power *= 10, ++zeros) {
        EXPECT_EQ(format(power), "1" + std::string(zeros, '0'));
        EXPECT_EQ(format(power - 1), zeros == 0 ? "0" : std::string(zeros, '9'));
    }
}

} // namespace
