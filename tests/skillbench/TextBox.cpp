#include "TextBox.hpp"

#include <gtest/gtest.h>

namespace {

using corvane::skillbench::TextBox;
constexpr auto kDrop = TextBox::Selection::Drop;
constexpr auto kExtend = TextBox::Selection::Extend;

TEST(TextBox, ShowsCursorAndSelection) {
    EXPECT_EQ(TextBox().picture(), "|");
    TextBox box(L"ab\u00fc", 2);
    EXPECT_EQ(box.picture(), "ab|ü");
    box.moveLeft(kExtend);
    EXPECT_EQ(box.picture(), "a[b]ü");
    EXPECT_EQ(box.anchor(), 2U);
    EXPECT_EQ(box.cursor(), 1U);
}

TEST(TextBox, TheCursorStopsAtTheEnds) {
    TextBox box(L"ab", 1);
    box.moveLeft(kDrop);
    box.moveLeft(kDrop);
    EXPECT_EQ(box.picture(), "|ab");
    box.moveEnd(kDrop);
    box.moveRight(kDrop);
    EXPECT_EQ(box.picture(), "ab|");
    box.moveHome(kDrop);
    EXPECT_EQ(box.picture(), "|ab");
}

TEST(TextBox, ASelectionIsLeftTowardsTheSideOfTheKey) {
    TextBox box(L"abcd", 1);
    box.moveEnd(kExtend);
    EXPECT_EQ(box.picture(), "a[bcd]");
    box.moveLeft(kDrop);
    EXPECT_EQ(box.picture(), "a|bcd");
    box.selectAll();
    EXPECT_EQ(box.picture(), "[abcd]");
    box.moveRight(kDrop);
    EXPECT_EQ(box.picture(), "abcd|");
    box.moveHome(kExtend);
    EXPECT_EQ(box.picture(), "[abcd]");
    EXPECT_EQ(box.cursor(), 0U);
}

TEST(TextBox, EnteringReplacesTheSelection) {
    TextBox box(L"abcd", 3);
    box.moveLeft(kExtend);
    box.moveLeft(kExtend);
    box.enter(L"xyz");
    EXPECT_EQ(box.picture(), "axyz|d");
    box.enter(L"!");
    EXPECT_EQ(box.picture(), "axyz!|d");
}

TEST(TextBox, DeletesOneCharacterOrTheSelection) {
    TextBox box(L"abcde", 2);
    EXPECT_TRUE(box.deleteBackward());
    EXPECT_EQ(box.picture(), "a|cde");
    EXPECT_TRUE(box.deleteForward());
    EXPECT_EQ(box.picture(), "a|de");
    box.moveRight(kExtend);
    EXPECT_TRUE(box.deleteBackward());
    EXPECT_EQ(box.picture(), "a|e");
    box.selectAll();
    EXPECT_TRUE(box.deleteForward());
    EXPECT_EQ(box.picture(), "|");
}

TEST(TextBox, SaysWhenThereIsNothingToDelete) {
    TextBox box(L"a", 0);
    EXPECT_FALSE(box.deleteBackward());
    box.moveEnd(kDrop);
    EXPECT_FALSE(box.deleteForward());
    EXPECT_EQ(box.picture(), "a|");
}

TEST(TextBox, AdjustersSeeAnchorAndCursor) {
    TextBox box(L"abc", 1);
    box.moveRight(kExtend);
    box.adjust([](std::wstring& text, std::uint64_t& start, std::uint64_t& end) {
        EXPECT_EQ(start, 1U);
        EXPECT_EQ(end, 2U);
        text += L"!";
        start = end = text.size();
    });
    EXPECT_EQ(box.picture(), "abc!|");
}

} // namespace
