#include "json/eightBytes.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace {

using namespace corvane::utils::json;

/// Eight bytes, all the same but for one.
std::uint64_t bytesWith(std::size_t place, char other, char same) {
    std::string text(kEight, same);
    text[place] = other;
    return loadEightBytes(text.data());
}

TEST(EightBytes, PlainBytesEndAtTheFirstThatDoesNotStandForItself) {
    for (int code = 0; code != 256; ++code) {
        const bool isPlain = code >= 0x20 && code < 0x80 && code != '"' && code != '\\';
        for (const char same : {' ', '!', '#', '[', ']', 'x', '\x7F'}) {
            for (std::size_t place = 0; place != kEight; ++place) {
                EXPECT_EQ(countPlainBytes(bytesWith(place, static_cast<char>(code), same)),
                          isPlain ? kEight : place)
                    << code << " at " << place << " among " << same;
            }
        }
    }
}

TEST(EightBytes, PlainBytesBehindTheFirstOtherDoNotCount) {
    EXPECT_EQ(countPlainBytes(loadEightBytes("\"#\"!]\\[ ")), 0U);
    EXPECT_EQ(countPlainBytes(loadEightBytes("ab\"!#\\]x")), 2U);
    EXPECT_EQ(countPlainBytes(loadEightBytes("abc\x1F ! z")), 3U);
    EXPECT_EQ(countPlainBytes(loadEightBytes("abcdefg\xFF")), 7U);
}

TEST(EightBytes, SpacesEndAtTheFirstOtherByte) {
    for (int code = 0; code != 256; ++code) {
        for (std::size_t place = 0; place != kEight; ++place) {
            EXPECT_EQ(countSpaces(bytesWith(place, static_cast<char>(code), ' ')),
                      code == ' ' ? kEight : place);
        }
    }
}

TEST(EightBytes, DigitsEndAtTheFirstOtherByte) {
    for (int code = 0; code != 256; ++code) {
        const bool isDigit = code >= '0' && code <= '9';
        for (const char same : {'0', '5', '9'}) {
            for (std::size_t place = 0; place != kEight; ++place) {
                EXPECT_EQ(countDigits(bytesWith(place, static_cast<char>(code), same)),
                          isDigit ? kEight : place)
                    << code << " at " << place << " among " << same;
            }
        }
    }
}

TEST(EightBytes, DigitsAreReadAsTheNumberTheyStandFor) {
    const std::uint64_t bytes = loadEightBytes("12345678");
    EXPECT_EQ(readDigits(bytes, 0), 0U);
    EXPECT_EQ(readDigits(bytes, 1), 1U);
    EXPECT_EQ(readDigits(bytes, 2), 12U);
    EXPECT_EQ(readDigits(bytes, 3), 123U);
    EXPECT_EQ(readDigits(bytes, 4), 1234U);
    EXPECT_EQ(readDigits(bytes, 5), 12345U);
    EXPECT_EQ(readDigits(bytes, 6), 123456U);
    EXPECT_EQ(readDigits(bytes, 7), 1234567U);
    EXPECT_EQ(readDigits(bytes, 8), 12345678U);
    EXPECT_EQ(readDigits(loadEightBytes("99999999"), 8), 99999999U);
    EXPECT_EQ(readDigits(loadEightBytes("00000000"), 8), 0U);
    EXPECT_EQ(readDigits(loadEightBytes("90.xyz\xFF\""), 2), 90U);
}

} // namespace
