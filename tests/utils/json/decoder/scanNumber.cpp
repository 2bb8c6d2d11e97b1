#include "json/decoder/scanNumber.hpp"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cstdint>
#include <random>
#include <string>
#include <system_error>

namespace {

using corvane::utils::json::decoder::detail::ScannedNumber;
using corvane::utils::json::decoder::detail::scanNumber;
using corvane::utils::json::decoder::detail::TokenKind;

ScannedNumber scan(const std::string& text) {
    return scanNumber(text.data(), text.data() + text.size());
}

/// What the standard library makes of a number that has the form of a double.
void expectAgreement(const std::string& text) {
    double number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    // In a text that goes on, in one that ends soon, and at the end.
    for (const std::string rest : {", 12345678", ",1", ""}) {
        const std::string whole = text + rest;
        const ScannedNumber scanned = scan(whole);
        ASSERT_EQ(scanned.end - whole.data(), static_cast<std::ptrdiff_t>(text.size())) << whole;
        if (result.ec == std::errc::result_out_of_range) {
            ASSERT_EQ(scanned.outcome, ScannedNumber::Outcome::OutOfRange) << whole;
        } else {
            ASSERT_EQ(scanned.outcome, ScannedNumber::Outcome::Number) << whole;
            ASSERT_EQ(scanned.kind, TokenKind::Double) << whole;
            ASSERT_EQ(scanned.bits, std::bit_cast<std::uint64_t>(number)) << whole;
        }
    }
}

std::string digits(std::mt19937_64& random, std::size_t count) {
    std::string text;
    while (text.size() != count) {
        text += static_cast<char>('0' + random() % 10);
    }
    return text;
}

TEST(ScanNumber, AgreesWithTheStandardLibraryForEveryNumberOfDigits) {
    std::mt19937_64 random(20240513);
    for (std::size_t whole = 1; whole != 25; ++whole) {
        for (std::size_t fraction = 1; fraction != 25; ++fraction) {
            for (const char* const exponent : {"", "e0", "E+7", "e-7", "e25", "e-25", "e-300"}) {
                std::string text = random() % 2 == 0 ? "-" : "";
                text += whole == 1 ? "0" : "7" + digits(random, whole - 1);
                text += "." + digits(random, fraction) + exponent;
                expectAgreement(text);
            }
        }
    }
}

TEST(ScanNumber, AgreesWithTheStandardLibraryAtTheEndsOfTheRange) {
    for (const char* const text :
         {"1e308", "1e309", "-1e309", "1.7976931348623157e308", "1.7976931348623158e308",
          "1.7976931348623159e308", "4.9406564584124654e-324", "2.2250738585072014e-308",
          "2.2250738585072011e-308", "1e-323", "1e-324", "0e999999999999999999999", "0.0", "-0.0",
          "-0e0", "0.0e-999", "1e99999999999999999999", "1e-99999999999999999999"}) {
        expectAgreement(text);
    }
}

TEST(ScanNumber, AgreesWithTheStandardLibraryForTheShortestTextOfRandomDoubles) {
    std::mt19937_64 random(20240514);
    for (int round = 0; round != 30'000; ++round) {
        const auto number = std::bit_cast<double>(random());
        if (number - number != 0) {
            continue; // infinite or not a number
        }
        char text[32];
        const char* const end =
            std::to_chars(text, text + sizeof text, number, std::chars_format::scientific).ptr;
        expectAgreement(std::string(static_cast<const char*>(text), end));
    }
}

TEST(ScanNumber, IntegersAreSignedIfTheyFitElseUnsignedElseDoubles) {
    struct Case {
        const char* text;
        TokenKind kind;
        std::uint64_t bits;
    };
    for (const Case& expected : {
             Case{"0", TokenKind::Int64, 0},
             {"7", TokenKind::Int64, 7},
             {"-7", TokenKind::Int64, 0xFFFF'FFFF'FFFF'FFF9},
             {"12345678", TokenKind::Int64, 12'345'678},
             {"1234567890123456789", TokenKind::Int64, 1'234'567'890'123'456'789},
             {"9223372036854775807", TokenKind::Int64, 0x7FFF'FFFF'FFFF'FFFF},
             {"9223372036854775808", TokenKind::UInt64, 0x8000'0000'0000'0000},
             {"9999999999999999999", TokenKind::UInt64, 9'999'999'999'999'999'999U},
             {"10000000000000000000", TokenKind::UInt64, 10'000'000'000'000'000'000U},
             {"18446744073709551615", TokenKind::UInt64, 0xFFFF'FFFF'FFFF'FFFF},
             {"18446744073709551616", TokenKind::Double, std::bit_cast<std::uint64_t>(0x1p64)},
             {"100000000000000000000", TokenKind::Double, std::bit_cast<std::uint64_t>(1e20)},
             {"-9223372036854775808", TokenKind::Int64, 0x8000'0000'0000'0000},
             {"-9223372036854775809", TokenKind::Double, std::bit_cast<std::uint64_t>(-0x1p63)},
             {"-18446744073709551616", TokenKind::Double, std::bit_cast<std::uint64_t>(-0x1p64)},
             // Its digits come to 2^63 when they are counted modulo 2^64.
             {"-27670116110564327424", TokenKind::Double,
              std::bit_cast<std::uint64_t>(-27670116110564327424.0)},
             {"-0", TokenKind::Double, std::bit_cast<std::uint64_t>(-0.0)},
         }) {
        for (const std::string rest : {"", "]", ",12345678"}) {
            const std::string text = expected.text + rest;
            const ScannedNumber scanned = scan(text);
            EXPECT_EQ(scanned.outcome, ScannedNumber::Outcome::Number) << text;
            EXPECT_EQ(scanned.kind, expected.kind) << text;
            EXPECT_EQ(scanned.bits, expected.bits) << text;
            EXPECT_EQ(text.substr(static_cast<std::size_t>(scanned.end - text.data())), rest);
        }
    }
}

TEST(ScanNumber, EndsWhereSomethingElseIsExpected) {
    struct Case {
        std::string text;
        std::ptrdiff_t place;
    };
    for (const Case& expected : {Case{"", 0},
                                 {"-", 1},
                                 {"x", 0},
                                 {"-x", 1},
                                 {"+1", 0},
                                 {".5", 0},
                                 {"01", 1},
                                 {"-01", 2},
                                 {"00.5", 1},
                                 {"1.", 2},
                                 {"1.e5", 2},
                                 {"1.x", 2},
                                 {"12345678.", 9},
                                 {"1e", 2},
                                 {"1e+", 3},
                                 {"1e-", 3},
                                 {"1e+x", 3},
                                 {"1.5ex", 4}}) {
        const ScannedNumber scanned = scan(expected.text);
        EXPECT_EQ(scanned.outcome, ScannedNumber::Outcome::Unexpected) << expected.text;
        EXPECT_EQ(scanned.end - expected.text.data(), expected.place) << expected.text;
    }
}

} // namespace
