#include <corvane/workbench/model/internal/keys.hpp>

#include "everyShortText.hpp"
#include "naiveKeys.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace {

using corvane::workbench::model::internal::parseKeyComponent;
using corvane::workbench::model::internal::splitMemberKey;
using ::testing::Eq;
using ::testing::Optional;
using ::testing::Pair;

std::ptrdiff_t endOfComponent(std::string_view key, std::ptrdiff_t start = 0) {
    return parseKeyComponent(key, key.begin() + start) - key.begin();
}

auto split(std::string_view key) {
    return splitMemberKey(key);
}

TEST(ParseKeyComponent, APlainComponentRunsToTheNextDotOrToTheEnd) {
    EXPECT_EQ(endOfComponent("pump.valve"), 4);
    EXPECT_EQ(endOfComponent("pump.valve", 5), 10);
    EXPECT_EQ(endOfComponent("pump"), 4);
}

TEST(ParseKeyComponent, ABracketedComponentRunsToTheDotBehindItsClosingBracket) {
    EXPECT_EQ(endOfComponent("[a.b].c"), 5);
    EXPECT_EQ(endOfComponent("[a.b]"), 5);
    EXPECT_EQ(endOfComponent("x.[a.b].c", 2), 7);
}

TEST(ParseKeyComponent, OnlyTheFirstClosingBracketCounts) {
    EXPECT_EQ(endOfComponent("[a]b.c].d"), 4);
    EXPECT_EQ(endOfComponent("[[a.b].c"), 6);
}

TEST(ParseKeyComponent, AnUnclosedBracketRunsToTheEndOfTheKey) {
    EXPECT_EQ(endOfComponent("[a.b"), 4);
    EXPECT_EQ(endOfComponent("["), 1);
}

TEST(ParseKeyComponent, BracketsInsideAPlainComponentMeanNothing) {
    EXPECT_EQ(endOfComponent("a[b.c]"), 3);
    EXPECT_EQ(endOfComponent("a]b.c"), 3);
}

TEST(ParseKeyComponent, AnEmptyComponentEndsWhereItBegins) {
    EXPECT_EQ(endOfComponent(""), 0);
    EXPECT_EQ(endOfComponent(".a"), 0);
    EXPECT_EQ(endOfComponent("a.", 2), 2);
    EXPECT_EQ(endOfComponent("a..b", 2), 2);
}

TEST(SplitMemberKey, TheIteratorFormFindsTheLastSeparatorAndTheMember) {
    const std::string_view key = "a.[b.c].d";
    const auto [separator, member] = splitMemberKey(key, key.begin());
    EXPECT_EQ(separator - key.begin(), 7);
    ASSERT_TRUE(member.has_value());
    EXPECT_EQ(*member - key.begin(), 8);
}

TEST(SplitMemberKey, TheIteratorFormBeginsAtTheGivenPlace) {
    const std::string_view key = "a.b.c";
    const auto [separator, member] = splitMemberKey(key, key.begin() + 4);
    EXPECT_EQ(separator, key.end());
    EXPECT_FALSE(member.has_value());
    // In the middle of a bracketed component its "[" is not seen any more.
    const std::string_view bracketed = "[a.b]";
    const auto inside = splitMemberKey(bracketed, bracketed.begin() + 1);
    EXPECT_EQ(inside.first - bracketed.begin(), 2);
}

TEST(SplitMemberKey, TheIteratorFormGivesTheEndAndNoMemberForASingleComponent) {
    for (const std::string_view key : {"x", "[a.b]", "[a.b", ""}) {
        const auto [separator, member] = splitMemberKey(key, key.begin());
        EXPECT_EQ(separator, key.end()) << key;
        EXPECT_FALSE(member.has_value()) << key;
    }
}

TEST(SplitMemberKey, TheLastComponentIsTheMember) {
    EXPECT_THAT(split("a.b.c"), Pair(Eq("a.b"), Optional(Eq("c"))));
    EXPECT_THAT(split("a.[b.c]"), Pair(Eq("a"), Optional(Eq("[b.c]"))));
    EXPECT_THAT(split("x.[y.z]"), Pair(Eq("x"), Optional(Eq("[y.z]"))));
    EXPECT_THAT(split("[x.y].z"), Pair(Eq("[x.y]"), Optional(Eq("z"))));
    EXPECT_THAT(split("a.[b.c].[d.e]"), Pair(Eq("a.[b.c]"), Optional(Eq("[d.e]"))));
}

TEST(SplitMemberKey, ASingleComponentHasNoMember) {
    EXPECT_THAT(split("x"), Pair(Eq("x"), Eq(std::nullopt)));
    EXPECT_THAT(split("[a.b]"), Pair(Eq("[a.b]"), Eq(std::nullopt)));
    EXPECT_THAT(split("[a.b"), Pair(Eq("[a.b"), Eq(std::nullopt)));
    EXPECT_THAT(split(""), Pair(Eq(""), Eq(std::nullopt)));
}

TEST(SplitMemberKey, EmptyComponentsAreSplitLikeOthers) {
    EXPECT_THAT(split("a."), Pair(Eq("a"), Optional(Eq(""))));
    EXPECT_THAT(split("x..y"), Pair(Eq("x."), Optional(Eq("y"))));
    EXPECT_THAT(split("."), Pair(Eq(""), Optional(Eq(""))));
    EXPECT_THAT(split(".."), Pair(Eq("."), Optional(Eq(""))));
    EXPECT_THAT(split(".a"), Pair(Eq(""), Optional(Eq("a"))));
}

TEST(SplitMemberKey, AnUnclosedBracketSwallowsTheRestOfTheKey) {
    EXPECT_THAT(split("a.[b.c"), Pair(Eq("a"), Optional(Eq("[b.c"))));
}

TEST(SplitMemberKey, TextBehindAClosingBracketBelongsToItsComponent) {
    EXPECT_THAT(split("[a.b]c.d"), Pair(Eq("[a.b]c"), Optional(Eq("d"))));
}

TEST(SplitMemberKey, TheViewsPointIntoTheKey) {
    const std::string_view key = "a.b";
    const auto [element, member] = splitMemberKey(key);
    EXPECT_EQ(element.data(), key.data());
    ASSERT_TRUE(member.has_value());
    EXPECT_EQ(member->data(), key.data() + 2);
}

TEST(SplitMemberKey, PositionsAreBytes) {
    EXPECT_THAT(split("Bl\xc3\xb6"
                      "cke.H\xc3\xb6he"),
                Pair(Eq("Bl\xc3\xb6"
                        "cke"),
                     Optional(Eq("H\xc3\xb6he"))));
    EXPECT_THAT(split(std::string_view("a\0b.c", 5)),
                Pair(Eq(std::string_view("a\0b", 3)), Optional(Eq("c"))));
}

TEST(SplitMemberKey, TheOwningFormCutsTheStringThatItWasGiven) {
    std::string key = "a.very.long.key.that.does.not.fit.into.the.string.itself.member";
    const char* const memory = key.data();
    const std::pair<std::string, std::optional<std::string>> parts = splitMemberKey(std::move(key));
    EXPECT_EQ(parts.first, "a.very.long.key.that.does.not.fit.into.the.string.itself");
    EXPECT_EQ(parts.first.data(), memory);
    EXPECT_THAT(parts.second, Optional(Eq("member")));
}

TEST(SplitMemberKey, TheOwningFormReturnsAStringWithoutMemberWhole) {
    std::string key = "[a.single.component.that.does.not.fit.into.the.string.itself]";
    const char* const memory = key.data();
    const std::pair<std::string, std::optional<std::string>> parts = splitMemberKey(std::move(key));
    EXPECT_EQ(parts.first, "[a.single.component.that.does.not.fit.into.the.string.itself]");
    EXPECT_EQ(parts.first.data(), memory);
    EXPECT_EQ(parts.second, std::nullopt);
}

TEST(SplitMemberKey, TheOwningFormKeepsAnEmptyMember) {
    const std::pair<std::string, std::optional<std::string>> parts =
        splitMemberKey(std::string("a."));
    EXPECT_EQ(parts.first, "a");
    EXPECT_THAT(parts.second, Optional(Eq("")));
}

TEST(SplitMemberKey, EveryShortKeyIsSplitAsComponentByComponent) {
    std::size_t texts = 0;
    corvane::tests::forEveryShortText(7, [&](const std::string& key) {
        ++texts;
        const auto [element, member] = corvane::tests::naiveSplit(key);
        const auto views = splitMemberKey(std::string_view(key));
        const auto strings = splitMemberKey(std::string(key));
        EXPECT_TRUE(views.first == element && views.second == member) << key;
        EXPECT_TRUE(strings.first == element && strings.second == member) << key;
    });
    EXPECT_EQ(texts, 21'845U);
}

TEST(ParseKeyComponent, EveryShortKeyIsWalkedComponentByComponent) {
    corvane::tests::forEveryShortText(7, [](const std::string& text) {
        const std::string_view key = text;
        auto start = key.begin();
        for (const std::string& component : corvane::tests::naiveComponents(key)) {
            const auto end = parseKeyComponent(key, start);
            EXPECT_EQ(std::string_view(start, end), component) << key;
            start = end == key.end() ? end : end + 1;
        }
    });
}

} // namespace
