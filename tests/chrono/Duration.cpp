#include <corvane/workbench/chrono/Duration.hpp>

#include "json/decoding.hpp"
#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/utils/json/decoder/AllowLegacyMicrosecondsTag.hpp>
#include <corvane/utils/json/decoder/Document.hpp>
#include <corvane/utils/json/decoder/Exception.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/workbench/json/internal/StringOutputStream.hpp>

#include <gtest/gtest.h>

#include <bit>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace corvane::workbench::chrono {
namespace {

namespace decoder = utils::json::decoder;
namespace test = json::test;
namespace encoder = utils::json::encoder;
using Units = Duration::Units;

static_assert(std::is_trivially_copyable_v<Duration>);
static_assert(std::is_nothrow_default_constructible_v<Duration>);
static_assert(sizeof(Units) == 4);
static_assert(static_cast<int>(Units::Nanoseconds) == 0);
static_assert(static_cast<int>(Units::Microseconds) == 1);
static_assert(static_cast<int>(Units::Milliseconds) == 2);
static_assert(static_cast<int>(Units::Seconds) == 3);
static_assert(static_cast<int>(Units::Minutes) == 4);
static_assert(static_cast<int>(Units::Hours) == 5);

constexpr Units kAllUnits[] = {Units::Nanoseconds, Units::Microseconds, Units::Milliseconds,
                               Units::Seconds,     Units::Minutes,      Units::Hours};
constexpr const char* kInvalid = "JSON string does not represent a valid time duration";

std::string quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}

Duration load(std::string_view json) {
    utils::io::MemoryInputStream<char> stream(json);
    decoder::Document document(stream);
    return Duration::load(document.root());
}

Duration loadLegacy(std::string_view json) {
    utils::io::MemoryInputStream<char> stream(json);
    decoder::Document document(stream);
    return Duration::load(document.root(), decoder::kAllowLegacyMicroseconds);
}

std::string save(const Duration& duration) {
    json::internal::StringOutputStream stream;
    encoder::Document document(stream, encoder::Document::Format::Compact);
    encoder::Value root = document.root();
    duration.save(root);
    document.close();
    return stream.take();
}

/// What loading the JSON text complains about; empty if it does not.
std::string errorOf(std::string_view json) {
    try {
        static_cast<void>(load(json));
    } catch (const std::exception& error) {
        return error.what();
    }
    return {};
}

TEST(Duration, IsZeroSecondsByDefault) {
    EXPECT_EQ(Duration().value(), 0.0);
    EXPECT_FALSE(std::signbit(Duration().value()));
    EXPECT_EQ(Duration().units(), Units::Seconds);
}

TEST(Duration, ComparesItsTwoFields) {
    EXPECT_EQ(Duration(1.0, Units::Seconds), Duration(1.0, Units::Seconds));
    EXPECT_NE(Duration(1.0, Units::Seconds), Duration(2.0, Units::Seconds));
    EXPECT_NE(Duration(1.0, Units::Seconds), Duration(1.0, Units::Hours));
    EXPECT_NE(Duration(1000.0, Units::Milliseconds), Duration(1.0, Units::Seconds));
}

TEST(Duration, IsAssignedByValue) {
    Duration duration;
    const Duration other(2.5, Units::Hours);
    duration = other;
    EXPECT_EQ(duration, Duration(2.5, Units::Hours));
    duration = Duration(1.0, Units::Minutes);
    EXPECT_EQ(duration, Duration(1.0, Units::Minutes));
}

TEST(Duration, IsSavedAsNumberAndUnit) {
    EXPECT_EQ(save({250.0, Units::Milliseconds}), "\"250ms\"");
    EXPECT_EQ(save({1.5, Units::Seconds}), "\"1.5s\"");
    EXPECT_EQ(save({10.0, Units::Microseconds}), "\"10\xc2\xb5s\"");
    EXPECT_EQ(save({-3.0, Units::Nanoseconds}), "\"-3ns\"");
    EXPECT_EQ(save({5.0, Units::Minutes}), "\"5m\"");
    EXPECT_EQ(save({1e30, Units::Hours}), "\"1e+30h\"");
}

TEST(Duration, IsSavedWithoutUnitWhenItIsZero) {
    for (const Units units : kAllUnits) {
        EXPECT_EQ(save({0.0, units}), "\"0\"");
        EXPECT_EQ(save({-0.0, units}), "\"0\"");
    }
}

TEST(Duration, AUnitThatIsNoneIsWrittenAsSeconds) {
    EXPECT_EQ(save({2.0, static_cast<Units>(6)}), "\"2s\"");
    EXPECT_EQ(save({2.0, static_cast<Units>(-1)}), "\"2s\"");
    EXPECT_EQ(save({2.0, static_cast<Units>(3)}), "\"2s\"");
}

TEST(Duration, EveryUnitIsLoaded) {
    EXPECT_EQ(load("\"1ns\""), Duration(1.0, Units::Nanoseconds));
    EXPECT_EQ(load("\"1\xc2\xb5s\""), Duration(1.0, Units::Microseconds));
    EXPECT_EQ(load("\"1\\u00b5s\""), Duration(1.0, Units::Microseconds));
    EXPECT_EQ(load("\"1us\""), Duration(1.0, Units::Microseconds));
    EXPECT_EQ(load("\"1ms\""), Duration(1.0, Units::Milliseconds));
    EXPECT_EQ(load("\"1s\""), Duration(1.0, Units::Seconds));
    EXPECT_EQ(load("\"1m\""), Duration(1.0, Units::Minutes));
    EXPECT_EQ(load("\"1h\""), Duration(1.0, Units::Hours));
}

TEST(Duration, TheAsciiFormOfMicrosecondsLoadsTheSame) {
    EXPECT_EQ(load("\"10us\""), Duration(10.0, Units::Microseconds));
    EXPECT_EQ(load(save({10.0, Units::Microseconds})), load("\"10us\""));
}

TEST(Duration, SpacesAndTabsMayStandInFrontOfTheUnit) {
    EXPECT_EQ(load("\"250 ms\""), Duration(250.0, Units::Milliseconds));
    EXPECT_EQ(load("\"1.5\\th\""), Duration(1.5, Units::Hours));
    EXPECT_EQ(load("\"1.5 \\t \\th\""), Duration(1.5, Units::Hours));
}

TEST(Duration, NumbersMayBeScientificOrNegative) {
    EXPECT_EQ(load("\"250ms\""), Duration(250.0, Units::Milliseconds));
    EXPECT_EQ(load("\"1e3us\""), Duration(1000.0, Units::Microseconds));
    EXPECT_EQ(load("\"-1.25E-2s\""), Duration(-0.0125, Units::Seconds));
}

TEST(Duration, AZeroMayStandAlone) {
    for (const char* const text : {"0", "0.0", "-0", "0e5"}) {
        const Duration duration = load(quoted(text));
        EXPECT_EQ(duration, Duration(0.0, Units::Seconds)) << text;
        EXPECT_FALSE(std::signbit(duration.value())) << text;
    }
}

TEST(Duration, AZeroWithAUnitKeepsTheUnit) {
    EXPECT_EQ(load("\"0ms\""), Duration(0.0, Units::Milliseconds));
    EXPECT_EQ(load("\"0 ms\""), Duration(0.0, Units::Milliseconds));
}

TEST(Duration, EverythingElseIsRefused) {
    EXPECT_EQ(errorOf("\"5\""), "JSON string does not represent a valid time duration");
    for (const char* const text :
         {"",      "250",       " 5s",  "5 s ",      "5s ",       "5min",   "5 ",
          "0 ",    "+5s",       "ms",   "5S",        "5MS",       "5 m s",  "s5",
          "5,5s",  "inf",       "infs", "nans",      "0x5s",      "1e400s", "--5s",
          "5\\ns", "5s\\u0000", "5.s.", "5\\u00a0s", "5\\u03bcs", "1e",     "five seconds"}) {
        EXPECT_EQ(errorOf(quoted(text)), kInvalid) << text;
    }
}

TEST(Duration, ARefusalTellsItsPlace) {
    EXPECT_EQ(
        test::locatedErrorOf<std::runtime_error>([] { static_cast<void>(load("\n  \"5\"")); }),
        (test::LocatedError{kInvalid, 2, 3}));
}

TEST(Duration, AnotherJsonValueFailsInTheDecoder) {
    EXPECT_EQ(errorOf("250"), "expected a string, found a number");
    EXPECT_EQ(errorOf("null"), "expected a string, found null");
    EXPECT_EQ(errorOf("[]"), "expected a string, found an array");
}

TEST(Duration, LegacyMicrosecondsTakeTheLargestUnitThatDividesThem) {
    EXPECT_EQ(loadLegacy("7200000000"), Duration(2.0, Units::Hours));
    EXPECT_EQ(loadLegacy("120000000"), Duration(2.0, Units::Minutes));
    EXPECT_EQ(loadLegacy("90000000"), Duration(90.0, Units::Seconds));
    EXPECT_EQ(loadLegacy("1500000"), Duration(1500.0, Units::Milliseconds));
    EXPECT_EQ(loadLegacy("1500"), Duration(1500.0, Units::Microseconds));
    EXPECT_EQ(loadLegacy("1000"), Duration(1.0, Units::Milliseconds));
    EXPECT_EQ(loadLegacy("0"), Duration(0.0, Units::Hours));
    EXPECT_EQ(loadLegacy("-60000000"), Duration(-1.0, Units::Minutes));
    EXPECT_EQ(loadLegacy("-1"), Duration(-1.0, Units::Microseconds));
}

TEST(Duration, LegacyMicrosecondsAreDividedAsIntegers) {
    EXPECT_EQ(loadLegacy("9223372036854775807"),
              Duration(9223372036854775807.0, Units::Microseconds));
    EXPECT_EQ(loadLegacy("-9223372036854775808"),
              Duration(-9223372036854775808.0, Units::Microseconds));
    // 2562047788 hours, and a count one above that no double can tell from it.
    EXPECT_EQ(loadLegacy("9223372036800000000"), Duration(2562047788.0, Units::Hours));
    EXPECT_EQ(loadLegacy("9223372036800000001"),
              Duration(9223372036800000000.0, Units::Microseconds));
}

TEST(Duration, LegacyMicrosecondsFollowTheRuleOverTheWholeRange) {
    std::mt19937_64 random(33);
    for (int round = 0; round < 5'000; ++round) {
        std::int64_t count = std::bit_cast<std::int64_t>(random()) >> (random() % 64);
        constexpr std::int64_t factors[] = {1, 1'000, 1'000'000, 60'000'000, 3'600'000'000};
        const std::int64_t factor = factors[random() % 5];
        count = count / factor * factor;
        const Duration duration = loadLegacy(std::to_string(count));
        const bool hours = count % 3'600'000'000 == 0;
        const bool minutes = count % 60'000'000 == 0;
        const bool seconds = count % 1'000'000 == 0;
        const bool milliseconds = count % 1'000 == 0;
        const Duration expected =
            hours          ? Duration(static_cast<double>(count / 3'600'000'000), Units::Hours)
            : minutes      ? Duration(static_cast<double>(count / 60'000'000), Units::Minutes)
            : seconds      ? Duration(static_cast<double>(count / 1'000'000), Units::Seconds)
            : milliseconds ? Duration(static_cast<double>(count / 1'000), Units::Milliseconds)
                           : Duration(static_cast<double>(count), Units::Microseconds);
        ASSERT_EQ(duration, expected) << count;
    }
}

TEST(Duration, ALegacyNumberThatIsNoWholeSigned64BitCountIsOutOfRange) {
    const auto expectRefusal = [](const std::string& number, const std::string& reason) {
        EXPECT_EQ(test::locatedErrorOf<std::out_of_range>(
                      [&] { static_cast<void>(loadLegacy(" " + number)); }),
                  (test::LocatedError{"the number " + number + reason, 1, 2}));
    };
    for (const char* const number :
         {"1.5", "-9223372036854775808.5", "9007199254740992.5", "1.00000000000000000001"}) {
        expectRefusal(number, " is not a whole number");
    }
    for (const char* const number : {"9223372036854775808", "-9223372036854775809", "1e30"}) {
        expectRefusal(number, " is out of range");
    }
}

TEST(Duration, WithLegacyMicrosecondsAStringIsLoadedAsBefore) {
    EXPECT_EQ(loadLegacy("\"250ms\""), Duration(250.0, Units::Milliseconds));
    EXPECT_THROW(static_cast<void>(loadLegacy("\"250\"")), std::runtime_error);
    EXPECT_THROW(static_cast<void>(loadLegacy("true")), std::runtime_error);
}

TEST(Duration, IsSavedIntoArraysAndObjects) {
    json::internal::StringOutputStream stream;
    encoder::Document document(stream, encoder::Document::Format::Compact);
    encoder::Value root = document.root();
    encoder::Object object = root.writeObject();
    Duration(250.0, Units::Milliseconds).saveTo(object, "delay");
    encoder::Value member = object.addMember("steps");
    encoder::Array array = member.writeArray();
    Duration(1.0, Units::Hours).saveTo(array);
    Duration().saveTo(array);
    document.close();
    EXPECT_EQ(stream.take(), R"({"delay":"250ms","steps":["1h","0"]})");
}

TEST(Duration, EveryFiniteValueOfEveryUnitSurvivesSavingAndLoading) {
    std::mt19937_64 random(34);
    std::vector<double> values{std::numeric_limits<double>::denorm_min(),
                               std::numeric_limits<double>::min(),
                               std::numeric_limits<double>::max(),
                               std::numeric_limits<double>::lowest(),
                               -std::numeric_limits<double>::denorm_min(),
                               0.1,
                               1.0 / 3.0,
                               9007199254740993.0};
    for (int round = 0; round < 2'000; ++round) {
        values.push_back(std::bit_cast<double>(random()));
        values.push_back(std::bit_cast<double>(random() >> (12 + random() % 52)));
    }
    for (const double value : values) {
        if (!std::isfinite(value) || value == 0.0) {
            continue;
        }
        for (const Units units : kAllUnits) {
            const Duration duration(value, units);
            ASSERT_EQ(load(save(duration)), duration) << duration.toString();
        }
    }
}

TEST(Duration, IsParsedFromTextAndGivenAsText) {
    EXPECT_EQ(Duration::parse("1.5 h"), Duration(1.5, Units::Hours));
    EXPECT_EQ(Duration::parse("0"), Duration());
    EXPECT_EQ(Duration::parse("5"), std::nullopt);
    EXPECT_EQ(Duration(1.5, Units::Hours).toString(), "1.5h");
    EXPECT_EQ(Duration(10.0, Units::Microseconds).toString(), "10\xc2\xb5s");
}

TEST(Duration, IsShownToPeopleWithASpaceAndAnUnmistakableUnit) {
    EXPECT_EQ(Duration(250.0, Units::Milliseconds).toDisplayText(), L"250 ms");
    EXPECT_EQ(Duration(10.0, Units::Microseconds).toDisplayText(), L"10 \x00b5s");
    EXPECT_EQ(Duration(5.0, Units::Minutes).toDisplayText(), L"5 min");
    EXPECT_EQ(Duration(1.5, Units::Hours).toDisplayText(), L"1.5 h");
    EXPECT_EQ(Duration(-0.0, Units::Nanoseconds).toDisplayText(), L"0 ns");
    EXPECT_EQ(Duration().toDisplayText(), L"0 s");
}

TEST(Duration, ComesFromTheStandardLibraryInTheUnitOfTheType) {
    using namespace std::chrono_literals;
    EXPECT_EQ(Duration::from(7ns), Duration(7.0, Units::Nanoseconds));
    EXPECT_EQ(Duration::from(7us), Duration(7.0, Units::Microseconds));
    EXPECT_EQ(Duration::from(1500ms), Duration(1500.0, Units::Milliseconds));
    EXPECT_EQ(Duration::from(7s), Duration(7.0, Units::Seconds));
    EXPECT_EQ(Duration::from(90min), Duration(90.0, Units::Minutes));
    EXPECT_EQ(Duration::from(-7h), Duration(-7.0, Units::Hours));
    EXPECT_EQ(Duration::from(std::chrono::duration<double>(1.5)), Duration(1.5, Units::Seconds));
}

TEST(Duration, ComesFromOtherTypesInTheLargestUnitOfWhichTheirTickIsAMultiple) {
    EXPECT_EQ(Duration::from(std::chrono::days(2)), Duration(48.0, Units::Hours));
    EXPECT_EQ(Duration::from(std::chrono::duration<int, std::ratio<120>>(3)),
              Duration(6.0, Units::Minutes));
    EXPECT_EQ(Duration::from(std::chrono::duration<int, std::centi>(3)),
              Duration(30.0, Units::Milliseconds));
    EXPECT_EQ(Duration::from(std::chrono::duration<int, std::pico>(1500)),
              Duration(1.5, Units::Nanoseconds));
    EXPECT_EQ(Duration::from(std::chrono::duration<int, std::ratio<1, 64>>(1)),
              Duration(15625.0, Units::Microseconds));
}

TEST(Duration, GoesToTheStandardLibraryAsTheNearestTick) {
    using namespace std::chrono_literals;
    EXPECT_EQ(Duration(250.0, Units::Milliseconds).to<std::chrono::nanoseconds>(), 250000000ns);
    EXPECT_EQ(Duration(1.5, Units::Hours).to<std::chrono::minutes>(), 90min);
    EXPECT_EQ(Duration(1.4, Units::Milliseconds).to<std::chrono::milliseconds>(), 1ms);
    EXPECT_EQ(Duration(1.5, Units::Milliseconds).to<std::chrono::milliseconds>(), 2ms);
    EXPECT_EQ(Duration(-1.5, Units::Milliseconds).to<std::chrono::milliseconds>(), -2ms);
    EXPECT_EQ(Duration(36.0, Units::Hours).to<std::chrono::days>(), std::chrono::days(2));
    EXPECT_EQ(Duration(1.0, Units::Milliseconds).to<std::chrono::duration<double>>().count(),
              0.001);
    using HoursInDouble = std::chrono::duration<double, std::ratio<3600>>;
    EXPECT_EQ(Duration(90.0, Units::Minutes).to<HoursInDouble>().count(), 1.5);
    EXPECT_EQ(Duration(2.0, static_cast<Units>(9)).to<std::chrono::seconds>(), 2s);
}

TEST(Duration, ASpanThatTheTypeCannotHoldIsOutOfRange) {
    using Bytes = std::chrono::duration<std::int8_t>;
    EXPECT_EQ(Duration(127.4, Units::Seconds).to<Bytes>().count(), 127);
    EXPECT_EQ(Duration(-128.0, Units::Seconds).to<Bytes>().count(), -128);
    EXPECT_THROW(static_cast<void>(Duration(127.5, Units::Seconds).to<Bytes>()), std::out_of_range);
    EXPECT_THROW(static_cast<void>(Duration(-128.5, Units::Seconds).to<Bytes>()),
                 std::out_of_range);
    EXPECT_THROW(static_cast<void>(
                     Duration(9223372036854775808.0, Units::Seconds).to<std::chrono::seconds>()),
                 std::out_of_range);
    EXPECT_THROW(static_cast<void>(Duration(1e300, Units::Hours).to<std::chrono::nanoseconds>()),
                 std::out_of_range);
    EXPECT_THROW(static_cast<void>(Duration(std::nan(""), Units::Hours).to<std::chrono::hours>()),
                 std::out_of_range);
    EXPECT_THROW(
        static_cast<void>(Duration(1e300, Units::Hours).to<std::chrono::duration<float>>()),
        std::out_of_range);
    EXPECT_THROW(
        static_cast<void>(Duration(-1.0, Units::Hours).to<std::chrono::duration<unsigned>>()),
        std::out_of_range);
}

} // namespace
} // namespace corvane::workbench::chrono
