#include <corvane/workbench/json/internal/Sequence.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>

namespace corvane::workbench::json::internal {
namespace {

using testing::ElementsAre;
using Texts = Sequence<std::string>;

static_assert(sizeof(Texts) == sizeof(void*));
static_assert(std::is_nothrow_move_constructible_v<Texts>);

Texts texts(std::initializer_list<const char*> elements) {
    Texts sequence;
    for (const char* const element : elements) {
        sequence.emplace_back(element);
    }
    return sequence;
}

/// Counts its living objects; a copy of a fragile one throws.
struct Counted {
    static inline int alive = 0;

    explicit Counted(bool isFragile) : fragile(isFragile) { ++alive; }
    Counted(const Counted& other) : fragile(other.fragile) {
        if (fragile) {
            throw std::runtime_error("fragile");
        }
        ++alive;
    }
    Counted(Counted&& other) noexcept : fragile(other.fragile) { ++alive; }
    ~Counted() { --alive; }

    bool fragile;
};

TEST(JsonSequence, IsEmptyByDefault) {
    const Texts sequence;
    EXPECT_TRUE(sequence.empty());
    EXPECT_EQ(sequence.size(), 0U);
    EXPECT_EQ(sequence.begin(), sequence.end());
}

TEST(JsonSequence, GrowsAndKeepsTheOrder) {
    Sequence<int> sequence;
    for (int number = 0; number < 1000; ++number) {
        EXPECT_EQ(sequence.emplace_back(number), number);
    }
    ASSERT_EQ(sequence.size(), 1000U);
    for (int number = 0; number < 1000; ++number) {
        ASSERT_EQ(sequence[static_cast<std::size_t>(number)], number);
    }
}

TEST(JsonSequence, AReservedSequenceDoesNotMoveItsElements) {
    Texts sequence;
    sequence.reserve(100);
    const std::string* const first = &sequence.emplace_back("first");
    for (int number = 1; number < 100; ++number) {
        sequence.emplace_back("more");
    }
    EXPECT_EQ(&sequence[0], first);
}

TEST(JsonSequence, MayAppendACopyOfItsOwnElement) {
    Texts sequence = texts({"a text that is too long to be kept in place"});
    for (int number = 0; number < 20; ++number) {
        sequence.emplace_back(sequence[0]);
    }
    EXPECT_EQ(sequence[20], "a text that is too long to be kept in place");
}

TEST(JsonSequence, ErasesOneElement) {
    Texts sequence = texts({"a", "b", "c"});
    EXPECT_EQ(*sequence.erase(sequence.begin() + 1), "c");
    EXPECT_THAT(sequence, ElementsAre("a", "c"));
    const std::string* const behindLast = sequence.erase(sequence.begin() + 1);
    EXPECT_EQ(behindLast, sequence.end());
    sequence.erase(sequence.begin());
    EXPECT_TRUE(sequence.empty());
    sequence.emplace_back("d");
    EXPECT_THAT(sequence, ElementsAre("d"));
}

TEST(JsonSequence, CopiesAreIndependentAndMovedFromSequencesEmpty) {
    Texts sequence = texts({"a", "b"});
    Texts copy = sequence;
    copy[0] = "changed";
    EXPECT_THAT(sequence, ElementsAre("a", "b"));
    const Texts moved = std::move(sequence);
    EXPECT_TRUE(sequence.empty()); // NOLINT(bugprone-use-after-move)
    EXPECT_THAT(moved, ElementsAre("a", "b"));
    copy = moved;
    EXPECT_THAT(copy, ElementsAre("a", "b"));
    const Texts& same = copy;
    copy = same;
    EXPECT_THAT(copy, ElementsAre("a", "b"));
    copy.clear();
    EXPECT_TRUE(copy.empty());
}

TEST(JsonSequence, AnExceptionWhileAppendingOrCopyingLosesNothing) {
    {
        Sequence<Counted> sequence;
        for (int number = 0; number < 4; ++number) {
            sequence.emplace_back(number == 3);
        }
        // Full: the new element is made in a larger allocation first.
        EXPECT_THROW(sequence.emplace_back(std::as_const(sequence)[3]), std::runtime_error);
        EXPECT_EQ(sequence.size(), 4U);
        EXPECT_EQ(Counted::alive, 4);
        EXPECT_THROW(Sequence<Counted>(std::as_const(sequence)), std::runtime_error);
        EXPECT_EQ(Counted::alive, 4);
    }
    EXPECT_EQ(Counted::alive, 0);
}

} // namespace
} // namespace corvane::workbench::json::internal
