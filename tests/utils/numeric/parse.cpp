#include <corvane/utils/numeric/parse.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace {

using corvane::utils::numeric::parse;
using corvane::utils::numeric::parseDoublePrefix;

TEST(ParseInteger, ReadsSignedIntegersUpToBothEnds) {
    EXPECT_EQ(parse<std::int64_t>("0"), 0);
    EXPECT_EQ(parse<std::int64_t>("-0"), 0);
    EXPECT_EQ(parse<std::int64_t>("007"), 7);
    EXPECT_EQ(parse<std::int64_t>("-42"), -42);
    EXPECT_EQ(parse<std::int64_t>("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(parse<std::int64_t>("-9223372036854775808"),
              std::numeric_limits<std::int64_t>::min());
}

TEST(ParseInteger, ReadsUnsignedIntegersUpToTheEnd) {
    EXPECT_EQ(parse<std::uint64_t>("0"), 0U);
    EXPECT_EQ(parse<std::uint64_t>("18446744073709551615"),
              std::numeric_limits<std::uint64_t>::max());
}

TEST(ParseInteger, RefusesWhatDoesNotFitTheType) {
    EXPECT_EQ(parse<std::int64_t>("9223372036854775808"), std::nullopt);
    EXPECT_EQ(parse<std::int64_t>("-9223372036854775809"), std::nullopt);
    EXPECT_EQ(parse<std::uint64_t>("18446744073709551616"), std::nullopt);
    EXPECT_EQ(parse<std::uint64_t>("-1"), std::nullopt);
}

TEST(ParseInteger, RefusesWhatIsNotANumberThroughout) {
    for (const std::string_view text :
         {"", " ", "-", "+", "+1", " 1", "1 ", "1x", "x1", "--1", "1.0", "1e3", "0x10", "1,000"}) {
        EXPECT_EQ(parse<std::int64_t>(text), std::nullopt) << text;
        EXPECT_EQ(parse<std::uint64_t>(text), std::nullopt) << text;
    }
}

TEST(ParseDouble, ReadsPlainAndScientificNotation) {
    EXPECT_EQ(parse<double>("0"), 0.0);
    EXPECT_EQ(parse<double>("250"), 250.0);
    EXPECT_EQ(parse<double>("-1.5"), -1.5);
    EXPECT_EQ(parse<double>("1e3"), 1000.0);
    EXPECT_EQ(parse<double>("1E+3"), 1000.0);
    EXPECT_EQ(parse<double>("25e-1"), 2.5);
    EXPECT_EQ(parse<double>(".5"), 0.5);
    EXPECT_EQ(parse<double>("5."), 5.0);
}

TEST(ParseDouble, KeepsTheSignOfZero) {
    const auto zero = parse<double>("-0");
    ASSERT_TRUE(zero.has_value());
    EXPECT_EQ(*zero, 0.0);
    EXPECT_TRUE(std::signbit(*zero));
}

TEST(ParseDouble, RoundsToTheNearestDouble) {
    EXPECT_EQ(parse<double>("0.1000000000000000055511151231257827021181583404541015625"), 0.1);
    EXPECT_EQ(parse<double>("9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(parse<double>("2.2250738585072011e-308"), 2.2250738585072011e-308);
    EXPECT_EQ(parse<double>("1.7976931348623157e308"), std::numeric_limits<double>::max());
    EXPECT_EQ(parse<double>("5e-324"), std::numeric_limits<double>::denorm_min());
}

TEST(ParseDouble, RefusesWhatADoubleCannotHold) {
    EXPECT_EQ(parse<double>("1e309"), std::nullopt);
    EXPECT_EQ(parse<double>("-1e400"), std::nullopt);
    EXPECT_EQ(parse<double>("1e-400"), std::nullopt);
    EXPECT_EQ(parse<double>("1e99999999999999999999"), std::nullopt);
    EXPECT_EQ(parse<double>("0e99999999999999999999"), 0.0);
}

TEST(ParseDouble, RefusesWhatIsNotANumberHere) {
    for (const std::string_view text :
         {"",       "-",   "+1",    " 1", "1 ", "\t1", "inf", "-inf", "infinity", "nan", "-nan",
          "nan(0)", "INF", "0x1p3", "x",  "-x", ".",   "-.",  "e3",   "1e",       "1e+", "1,5"}) {
        EXPECT_EQ(parse<double>(text), std::nullopt) << text;
    }
}

TEST(ParseDoublePrefix, StopsBehindTheLongestNumber) {
    struct Case {
        std::string_view text;
        double value;
        std::size_t length;
    };
    for (const Case& expected : {
             Case{"250ms", 250, 3},
             Case{"250 ms", 250, 3},
             Case{"1.5h", 1.5, 3},
             Case{"1e3us", 1000, 3},
             Case{"1ex", 1, 1},
             Case{"1e+x", 1, 1},
             Case{"1.s", 1, 2},
             Case{"-3m", -3, 2},
             Case{"0x10", 0, 1},
             Case{"1.2.3", 1.2, 3},
             Case{"7", 7, 1},
         }) {
        const auto parsed = parseDoublePrefix(expected.text);
        ASSERT_TRUE(parsed.has_value()) << expected.text;
        EXPECT_EQ(parsed->value, expected.value) << expected.text;
        EXPECT_EQ(parsed->length, expected.length) << expected.text;
    }
}

TEST(ParseDoublePrefix, FindsNoNumberWhereNoneStartsTheText) {
    for (const std::string_view text :
         {"", " 5s", "\t5s", "+5s", "s", "-", "-s", "-.s", "inf", "nan", "-infs", "1e400s"}) {
        EXPECT_FALSE(parseDoublePrefix(text).has_value()) << text;
    }
}

} // namespace
