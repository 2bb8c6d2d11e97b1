#include "LineBuffer.hpp"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

using corvane::skillbench::LineBuffer;

std::string written;
bool isBroken = false;

bool take(std::string_view text) noexcept {
    written += text;
    return !isBroken;
}

class SkillbenchLineBuffer : public testing::Test {
protected:
    SkillbenchLineBuffer() {
        written.clear();
        isBroken = false;
    }

    LineBuffer buffer_{take};
    std::ostream stream_{&buffer_};
};

TEST_F(SkillbenchLineBuffer, PassesOnWholeLinesWhenItIsFull) {
    const std::string line(999, 'x');
    for (int count = 0; count < 100; ++count) {
        stream_ << line << '\n';
    }
    EXPECT_EQ(written.size(), 65000U);
    EXPECT_TRUE(written.ends_with('\n'));
    stream_.flush();
    EXPECT_EQ(written.size(), 100'000U);
}

TEST_F(SkillbenchLineBuffer, PassesOnTheWholeLinesOnDemand) {
    stream_ << "a\nb\nc";
    buffer_.writeLines();
    EXPECT_EQ(written, "a\nb\n");
    stream_ << "d\n" << std::flush;
    EXPECT_EQ(written, "a\nb\ncd\n");
}

TEST_F(SkillbenchLineBuffer, PassesOnLinesThatAreLongerThanItself) {
    const std::string text(200'000, 'x');
    stream_ << text << "\n" << std::flush;
    EXPECT_TRUE(written == text + '\n');
}

TEST_F(SkillbenchLineBuffer, SaysThatItCannotWrite) {
    isBroken = true;
    stream_ << "a" << std::flush;
    EXPECT_FALSE(stream_.good());
}

} // namespace
