#include "findCircles.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using corvane::workbench::host::CircleEdge;
using corvane::workbench::host::findCircles;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::vector<std::size_t>> circles(std::size_t nodes, std::vector<CircleEdge> edges) {
    return findCircles(nodes, edges);
}

TEST(FindCircles, FindsNoneInATree) {
    EXPECT_THAT(circles(4, {{0, 1}, {0, 2}, {2, 3}, {1, 3}}), IsEmpty());
    EXPECT_THAT(circles(0, {}), IsEmpty());
}

TEST(FindCircles, IgnoresEdgesFromANodeToItself) {
    EXPECT_THAT(circles(2, {{0, 0}, {0, 1}, {1, 1}}), IsEmpty());
}

TEST(FindCircles, GivesTheEdgesOfACircleInOrder) {
    EXPECT_THAT(circles(3, {{1, 2}, {0, 1}, {2, 0}}), ElementsAre(ElementsAre(0, 2, 1)));
}

TEST(FindCircles, GivesOneShortCirclePerGroup) {
    // 0 <-> 1 lies inside 0 -> 1 -> 2 -> 0; 3 <-> 4 is on its own.
    EXPECT_THAT(circles(5, {{0, 1}, {1, 2}, {2, 0}, {1, 0}, {3, 4}, {4, 3}, {2, 3}}),
                ElementsAre(ElementsAre(0, 3), ElementsAre(4, 5)));
}

TEST(FindCircles, DoesNotRecurse) {
    constexpr std::uint32_t kLength = 200'000;
    std::vector<CircleEdge> edges;
    for (std::uint32_t node = 0; node < kLength; ++node) {
        edges.push_back({node, (node + 1) % kLength});
    }
    const auto found = findCircles(kLength, edges);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found.front().size(), kLength);
}

} // namespace
