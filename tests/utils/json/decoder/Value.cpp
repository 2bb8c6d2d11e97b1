#include <corvane/utils/json/decoder/Value.hpp>

#include "utils/json/decoder/ParsedText.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

namespace {

using corvane::tests::decoderError;
using corvane::tests::described;
using corvane::tests::ParsedText;
using corvane::utils::json::decoder::Value;

static_assert(!std::is_copy_constructible_v<Value>);
static_assert(std::is_same_v<Value::Number, std::variant<std::int64_t, std::uint64_t, double>>);

/// Which of the kinds a value says it is.
std::string kindsOf(const Value& value) {
    std::string kinds;
    kinds += value.isObject() ? "o" : "";
    kinds += value.isArray() ? "a" : "";
    kinds += value.isString() ? "s" : "";
    kinds += value.isNumber() ? "n" : "";
    kinds += value.isBool() ? "b" : "";
    kinds += value.isNull() ? "0" : "";
    return kinds;
}

TEST(JsonDecoderValue, HasExactlyOneKind) {
    struct Case {
        std::string_view text;
        std::string_view kind;
        std::string_view name;
    };
    for (const Case& expected : {
             Case{"{}", "o", "an object"},
             Case{"[]", "a", "an array"},
             Case{"\"a\"", "s", "a string"},
             Case{"\"\\n\"", "s", "a string"},
             Case{"1", "n", "a number"},
             Case{"18446744073709551615", "n", "a number"},
             Case{"1.5", "n", "a number"},
             Case{"true", "b", "a boolean"},
             Case{"false", "b", "a boolean"},
             Case{"null", "0", "null"},
         }) {
        ParsedText text{std::string(expected.text)};
        EXPECT_EQ(kindsOf(text.root()), expected.kind) << expected.text;
        EXPECT_EQ(text.root().kindName(), expected.name) << expected.text;
    }
}

TEST(JsonDecoderValue, SaysWhatWasExpectedAndWhatIsThere) {
    ParsedText number("\n 5");
    EXPECT_EQ(decoderError([&] { (void)number.root().asString(); }),
              "2:2 expected a string, found a number");
    EXPECT_EQ(decoderError([&] { (void)number.root().asObject(); }),
              "2:2 expected an object, found a number");
    EXPECT_EQ(decoderError([&] { (void)number.root().asArray(); }),
              "2:2 expected an array, found a number");
    EXPECT_EQ(decoderError([&] { (void)number.root().asBool(); }),
              "2:2 expected a boolean, found a number");
    ParsedText null("null");
    EXPECT_EQ(decoderError([&] { (void)null.root().asNumber(); }),
              "1:1 expected a number, found null");
    EXPECT_EQ(decoderError([&] { (void)null.root().asInt64(); }),
              "1:1 expected a number, found null");
    EXPECT_EQ(decoderError([&] { (void)null.root().asUInt64(); }),
              "1:1 expected a number, found null");
    ParsedText text("\"1\"");
    EXPECT_EQ(decoderError([&] { (void)text.root().asDouble(); }),
              "1:1 expected a number, found a string");
}

TEST(JsonDecoderValue, ThrowsRuntimeErrorsForAWrongKindAndOutOfRangeForAWrongNumber) {
    ParsedText text("1.5");
    EXPECT_THROW((void)text.root().asString(), std::runtime_error);
    EXPECT_THROW((void)text.root().asInt64(), std::out_of_range);
}

TEST(JsonDecoderValue, KeepsAnIntegerSignedWhenItFitsElseUnsignedElseAsADouble) {
    EXPECT_EQ(described("0"), "i0");
    EXPECT_EQ(described("9223372036854775807"), "i9223372036854775807");
    EXPECT_EQ(described("9223372036854775808"), "u9223372036854775808");
    EXPECT_EQ(described("18446744073709551615"), "u18446744073709551615");
    EXPECT_EQ(described("18446744073709551616"), "d18446744073709551616");
    EXPECT_EQ(described("-9223372036854775808"), "i-9223372036854775808");
    EXPECT_EQ(described("-9223372036854775809"), "d-9223372036854775808");
}

TEST(JsonDecoderValue, KeepsEveryNumberWithAFractionOrAnExponentAsADouble) {
    EXPECT_EQ(described("1.0"), "d1");
    EXPECT_EQ(described("1e2"), "d100");
    EXPECT_EQ(described("1E2"), "d100");
    EXPECT_EQ(described("-0"), "d-0");
    EXPECT_EQ(described("-0.0"), "d-0");
}

TEST(JsonDecoderValue, RoundsDoublesToTheNearest) {
    EXPECT_EQ(described("0.1"), "d0.1");
    EXPECT_EQ(described("0.1000000000000000055511151231257827021181583404541015625"), "d0.1");
    EXPECT_EQ(described("2.2250738585072011e-308"), "d2.225073858507201e-308");
    EXPECT_EQ(described("5e-324"), "d5e-324");
    EXPECT_EQ(described("1.7976931348623157e308"), "d1.7976931348623157e+308");
    EXPECT_EQ(described("1." + std::string(1000, '0') + "1e0"), "d1");
    EXPECT_EQ(described(std::string(300, '1')), "d1.1111111111111112e+299");
}

TEST(JsonDecoderValue, GivesIntegersOfTheTypeThatIsAskedFor) {
    ParsedText low("-9223372036854775808");
    EXPECT_EQ(low.root().asInt64(), std::numeric_limits<std::int64_t>::min());
    ParsedText high("18446744073709551615");
    EXPECT_EQ(high.root().asUInt64(), std::numeric_limits<std::uint64_t>::max());
    ParsedText small("7");
    EXPECT_EQ(small.root().asInt64(), 7);
    EXPECT_EQ(small.root().asUInt64(), 7U);
}

TEST(JsonDecoderValue, GivesAWholeDoubleAsAnInteger) {
    EXPECT_EQ(ParsedText("1e3").root().asInt64(), 1000);
    EXPECT_EQ(ParsedText("-2.0").root().asInt64(), -2);
    EXPECT_EQ(ParsedText("-0").root().asInt64(), 0);
    EXPECT_EQ(ParsedText("-0").root().asUInt64(), 0U);
    EXPECT_EQ(ParsedText("-9.223372036854775808e18").root().asInt64(),
              std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(ParsedText("1.8446744073709549568e19").root().asUInt64(), 18446744073709549568U);
}

TEST(JsonDecoderValue, RefusesANumberThatIsNotWhole) {
    EXPECT_EQ(decoderError([] { (void)ParsedText(" 1.5 ").root().asInt64(); }),
              "1:2 the number 1.5 is not a whole number");
    EXPECT_EQ(decoderError([] { (void)ParsedText("5e-1").root().asUInt64(); }),
              "1:1 the number 5e-1 is not a whole number");
}

TEST(JsonDecoderValue, DecidesIntegersOnTheirDigitsAndNotOnARoundedDouble) {
    const auto errorOf = [](const std::string& number) {
        return decoderError([&] { (void)ParsedText(number).root().asInt64(); });
    };
    const auto unsignedErrorOf = [](const std::string& number) {
        return decoderError([&] { (void)ParsedText(number).root().asUInt64(); });
    };
    EXPECT_EQ(errorOf("-9223372036854775809"),
              "1:1 the number -9223372036854775809 is out of range");
    EXPECT_EQ(errorOf("-9223372036854775808.5"),
              "1:1 the number -9223372036854775808.5 is not a whole number");
    EXPECT_EQ(errorOf("9007199254740992.5"),
              "1:1 the number 9007199254740992.5 is not a whole number");
    EXPECT_EQ(errorOf("4611686018427387904.25"),
              "1:1 the number 4611686018427387904.25 is not a whole number");
    EXPECT_EQ(errorOf("1.00000000000000000001"),
              "1:1 the number 1.00000000000000000001 is not a whole number");
    EXPECT_EQ(errorOf("0.99999999999999999999999"),
              "1:1 the number 0.99999999999999999999999 is not a whole number");
    EXPECT_EQ(errorOf("9223372036854775807.0000001e0"),
              "1:1 the number 9223372036854775807.0000001e0 is not a whole number");
    EXPECT_EQ(unsignedErrorOf("18446744073709551615.5"),
              "1:1 the number 18446744073709551615.5 is not a whole number");
    EXPECT_EQ(unsignedErrorOf("18446744073709551616"),
              "1:1 the number 18446744073709551616 is out of range");
    EXPECT_EQ(unsignedErrorOf("18446744073709551610e1"),
              "1:1 the number 18446744073709551610e1 is out of range");
    EXPECT_EQ(unsignedErrorOf("2e19"), "1:1 the number 2e19 is out of range");
    EXPECT_EQ(unsignedErrorOf("-0.5"), "1:1 the number -0.5 is not a whole number");
}

TEST(JsonDecoderValue, GivesAWholeNumberHoweverItIsWritten) {
    EXPECT_EQ(ParsedText("9223372036854775807.0").root().asInt64(), 9223372036854775807);
    EXPECT_EQ(ParsedText("9.223372036854775807e18").root().asInt64(), 9223372036854775807);
    EXPECT_EQ(ParsedText("-92233720368547758080e-1").root().asInt64(),
              std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(ParsedText("18446744073709551615.00").root().asUInt64(), 18446744073709551615U);
    EXPECT_EQ(ParsedText("1844674407370955161500000e-5").root().asUInt64(), 18446744073709551615U);
    EXPECT_EQ(ParsedText("9007199254740993.0").root().asInt64(), 9007199254740993);
    EXPECT_EQ(ParsedText("12.50E+1").root().asInt64(), 125);
    EXPECT_EQ(ParsedText("0." + std::string(400, '0') + "7e401").root().asInt64(), 7);
    EXPECT_EQ(ParsedText("7" + std::string(300, '0') + "e-300").root().asInt64(), 7);
    EXPECT_EQ(ParsedText("0e99999999999999999999").root().asInt64(), 0);
    EXPECT_EQ(ParsedText("-0.000").root().asUInt64(), 0U);
}

TEST(JsonDecoderValue, RefusesANumberThatDoesNotFit) {
    EXPECT_EQ(decoderError([] { (void)ParsedText("9223372036854775808").root().asInt64(); }),
              "1:1 the number 9223372036854775808 is out of range");
    EXPECT_EQ(decoderError([] { (void)ParsedText("9.223372036854775808e18").root().asInt64(); }),
              "1:1 the number 9.223372036854775808e18 is out of range");
    EXPECT_EQ(decoderError([] { (void)ParsedText("-1e30").root().asInt64(); }),
              "1:1 the number -1e30 is out of range");
    EXPECT_EQ(decoderError([] { (void)ParsedText("-1").root().asUInt64(); }),
              "1:1 the number -1 is out of range");
    EXPECT_EQ(decoderError([] { (void)ParsedText("-1.0").root().asUInt64(); }),
              "1:1 the number -1.0 is out of range");
    EXPECT_EQ(decoderError([] { (void)ParsedText("18446744073709551616").root().asUInt64(); }),
              "1:1 the number 18446744073709551616 is out of range");
}

TEST(JsonDecoderValue, ShortensALongNumberInItsMessage) {
    EXPECT_EQ(decoderError([] { (void)ParsedText(std::string(300, '7')).root().asInt64(); }),
              "1:1 the number 7777777777777777777777777777777777777777... is out of range");
}

TEST(JsonDecoderValue, GivesEveryNumberAsADouble) {
    EXPECT_EQ(ParsedText("-3").root().asDouble(), -3.0);
    EXPECT_EQ(ParsedText("18446744073709551615").root().asDouble(), 18446744073709551616.0);
    EXPECT_EQ(ParsedText("2.5").root().asDouble(), 2.5);
    EXPECT_TRUE(std::signbit(ParsedText("-0").root().asDouble()));
}

TEST(JsonDecoderValue, GivesBooleans) {
    EXPECT_TRUE(ParsedText("true").root().asBool());
    EXPECT_FALSE(ParsedText("false").root().asBool());
}

TEST(JsonDecoderValue, MayBeSkippedAndStillRead) {
    ParsedText text("[1,[2,{\"a\":3}],4]");
    std::string seen;
    auto array = text.root().asArray();
    for (const Value& value : array) {
        value.skip();
        seen += described(value) + ' ';
    }
    EXPECT_EQ(seen, "i1 [i2,{a:i3}] i4 ");
}

} // namespace
