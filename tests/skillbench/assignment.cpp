#include "assignment.hpp"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using corvane::skillbench::splitAssignment;

/// The two parts in brackets, when `known` is the only text that is accepted.
std::string split(std::string_view text, std::string_view known = "") {
    const auto isKnown = [&](std::string_view part) { return part == known; };
    const auto parts = splitAssignment(text, isKnown);
    if (!parts) {
        return "nothing";
    }
    return "<" + std::string(parts->first) + "><" + std::string(parts->second) + ">";
}

TEST(SplitAssignment, NeedsAnEqualsSign) {
    EXPECT_EQ(split(""), "nothing");
    EXPECT_EQ(split("key"), "nothing");
    EXPECT_EQ(split("key="), "<key><>");
    EXPECT_EQ(split("=value"), "<><value>");
}

TEST(SplitAssignment, ValuesContainWhatTheyLike) {
    EXPECT_EQ(split("key=a=b", "key"), "<key><a=b>");
}

TEST(SplitAssignment, KeysThatExistContainEqualsSigns) {
    EXPECT_EQ(split("a=b=c", "a=b"), "<a=b><c>");
    EXPECT_EQ(split("[a=b].x=c", "[a=b].x"), "<[a=b].x><c>");
}

TEST(SplitAssignment, OtherKeysEndOutsideBrackets) {
    EXPECT_EQ(split("[a=b].x=c"), "<[a=b].x><c>");
    EXPECT_EQ(split("a=b=c"), "<a><b=c>");
    EXPECT_EQ(split("[a=b"), "<[a><b>");
}

} // namespace
