#include "text.hpp"

#include <gtest/gtest.h>

namespace {

using namespace corvane::skillbench;

TEST(SkillbenchText, AlignsByCharacters) {
    EXPECT_EQ(padded("ab", 4), "ab  ");
    EXPECT_EQ(padded("Öl", 4), "Öl  ");
    EXPECT_EQ(padded("abcde", 4), "abcde");
}

TEST(SkillbenchText, PathsKeepTheirUtf8) {
    EXPECT_EQ(pathText(pathOf("Öl/Ω.json")), "Öl/Ω.json");
}

} // namespace
