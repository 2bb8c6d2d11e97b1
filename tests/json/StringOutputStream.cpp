#include <corvane/workbench/json/internal/StringOutputStream.hpp>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <string_view>

namespace corvane::workbench::json::internal {
namespace {

TEST(StringOutputStream, DescribesItself) {
    EXPECT_EQ(StringOutputStream().description(), "in-memory text string");
}

TEST(StringOutputStream, CollectsNothingWhenNothingIsWritten) {
    StringOutputStream stream;
    EXPECT_EQ(stream.take(), "");
    stream.flush();
    EXPECT_EQ(stream.take(), "");
}

TEST(StringOutputStream, CollectsSingleCharacters) {
    StringOutputStream stream;
    std::string expected;
    for (int number = 0; number < 10'000; ++number) {
        const auto character = static_cast<char>('a' + number % 26);
        stream.put(character);
        expected += character;
    }
    EXPECT_EQ(stream.take(), expected);
}

TEST(StringOutputStream, CollectsWritesOfEverySize) {
    StringOutputStream stream;
    std::string expected;
    for (std::size_t size = 0; size < 300; ++size) {
        const std::string text(size, static_cast<char>('a' + size % 26));
        stream.write(text);
        stream.put('|');
        expected += text + '|';
        if (size % 7 == 0) {
            stream.flush();
        }
    }
    stream.write(std::string(100'000, 'x'));
    stream.close();
    EXPECT_EQ(stream.take(), expected + std::string(100'000, 'x'));
}

TEST(StringOutputStream, KeepsNulCharacters) {
    StringOutputStream stream;
    stream.write(std::string_view("a\0b", 3));
    EXPECT_EQ(stream.take(), std::string("a\0b", 3));
}

TEST(StringOutputStream, BeginsAnewOnceItsTextIsTaken) {
    StringOutputStream stream;
    stream.write("first");
    EXPECT_EQ(stream.take(), "first");
    stream.write("second");
    EXPECT_EQ(stream.take(), "second");
}

TEST(StringOutputStream, RefusesMoreThanAStringCanHold) {
    StringOutputStream stream;
    stream.put('x');
    // Only the length of this view is looked at, which the compiler is not to know.
    const volatile std::size_t length = std::string().max_size();
    const std::string_view huge("x", length);
    try {
        stream.write(huge);
        ADD_FAILURE() << "no exception";
    } catch (const std::length_error& error) {
        EXPECT_STREQ(error.what(), "string data size exceeds representable size");
    }
    EXPECT_EQ(stream.take(), "x");
}

} // namespace
} // namespace corvane::workbench::json::internal
