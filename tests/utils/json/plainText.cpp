#include "json/plainText.hpp"

#include "string/Utf8Sequence.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace {

using corvane::utils::json::skipPlainBytes;
using corvane::utils::json::skipShortSequences;
using corvane::utils::string::readUtf8Sequence;

std::size_t plainLength(std::string_view text) {
    return static_cast<std::size_t>(skipPlainBytes(text.data(), text.data() + text.size()) -
                                    text.data());
}

std::size_t sequencesLength(std::string_view text) {
    return static_cast<std::size_t>(skipShortSequences(text.data(), text.data() + text.size()) -
                                    text.data());
}

TEST(PlainText, EndsAtTheFirstSpecialByteOrTheEnd) {
    for (std::size_t length = 0; length != 40; ++length) {
        const std::string text(length, 'x');
        ASSERT_EQ(plainLength(text), length);
        for (const char special : {'"', '\\', '\n', '\0', '\x80', '\xFF'}) {
            for (std::size_t place = 0; place != length; ++place) {
                std::string other = text;
                other[place] = special;
                ASSERT_EQ(plainLength(other), place) << length;
            }
        }
    }
}

TEST(ShortSequences, AreSkippedInRunsOfEveryLength) {
    for (const std::string sequence : {"\xC3\xA9", "\xE2\x82\xAC", "\xEE\x80\x80", "\xDF\xBF"}) {
        std::string run;
        for (int count = 0; count != 12; ++count) {
            // Behind the run there must be three bytes for the last one to be looked at.
            ASSERT_EQ(sequencesLength(run + "abc"), run.size());
            run += sequence;
        }
    }
}

TEST(ShortSequences, LeaveWhatNeedsASecondLook) {
    EXPECT_EQ(sequencesLength("\xE0\xA0\x80 well-formed"), 0U);
    EXPECT_EQ(sequencesLength("\xED\x9F\xBF well-formed"), 0U);
    EXPECT_EQ(sequencesLength("\xF0\x9F\x98\x80 well-formed"), 0U);
    EXPECT_EQ(sequencesLength("ASCII"), 0U);
    EXPECT_EQ(sequencesLength("\xC3\xA9"), 0U);
}

TEST(ShortSequences, AreWellFormedWhateverTheBytes) {
    // Every pair of bytes in every place of two sequences of three bytes.
    for (std::size_t place = 0; place != 5; ++place) {
        for (int first = 0; first != 256; ++first) {
            for (int second = 0; second != 256; ++second) {
                std::string text = "\xE2\x82\xAC\xE2\x82\xAC  ";
                text[place] = static_cast<char>(first);
                text[place + 1] = static_cast<char>(second);
                const std::size_t length = sequencesLength(text);
                for (std::size_t index = 0; index < length;) {
                    const auto sequence =
                        readUtf8Sequence(text.data() + index, text.data() + text.size());
                    ASSERT_TRUE(sequence.isWellFormed) << place << ' ' << first << ' ' << second;
                    ASSERT_GT(sequence.length, 1U);
                    index += sequence.length;
                    ASSERT_LE(index, length);
                }
            }
        }
    }
}

} // namespace
