#include <corvane/workbench/model/ChildElementAccessor.hpp>

#include "FakeElement.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <ranges>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using corvane::tests::FakeChildren;
using corvane::tests::FakeElement;
using corvane::workbench::model::ChildElementAccessor;
using corvane::workbench::model::Element;
using corvane::workbench::model::internal::AbstractChildElementAccessor;
using Iterator = ChildElementAccessor::Iterator;

static_assert(std::random_access_iterator<Iterator>);
static_assert(std::ranges::random_access_range<const ChildElementAccessor>);
static_assert(std::ranges::sized_range<const ChildElementAccessor>);
static_assert(std::is_same_v<decltype(std::declval<const ChildElementAccessor&>().rbegin()),
                             std::reverse_iterator<Iterator>>);
static_assert(std::is_trivially_copyable_v<ChildElementAccessor>);
static_assert(sizeof(ChildElementAccessor) == sizeof(void*) + sizeof(std::size_t));
static_assert(!std::is_constructible_v<ChildElementAccessor, const AbstractChildElementAccessor*>);

std::string outOfRangeText(const ChildElementAccessor& accessor, std::size_t index) {
    try {
        static_cast<void>(accessor.at(index));
    } catch (const std::out_of_range& error) {
        return error.what();
    }
    return "nothing was thrown";
}

class ChildElements : public ::testing::Test {
protected:
    std::array<FakeElement, 3> elements;
    FakeChildren collection;

    ChildElements() { collection.elements = {&elements[0], &elements[1], &elements[2]}; }

    [[nodiscard]] std::vector<const Element*> addresses() const {
        return {&elements[0], &elements[1], &elements[2]};
    }
};

TEST(ChildElementAccessor, ADefaultOneIsEmpty) {
    const ChildElementAccessor accessor;
    EXPECT_TRUE(accessor.empty());
    EXPECT_EQ(accessor.size(), 0u);
    EXPECT_EQ(accessor.begin(), accessor.end());
    EXPECT_EQ(accessor.rbegin(), accessor.rend());
}

TEST(ChildElementAccessor, AccessToADefaultOneThrowsWithIndexAndCount) {
    EXPECT_EQ(outOfRangeText(ChildElementAccessor(), 0),
              "child element index 0 out of range: element has 0 child(ren)");
}

TEST_F(ChildElements, TheAccessorOfACollectionHasItsSize) {
    const ChildElementAccessor accessor = collection;
    EXPECT_EQ(accessor.size(), 3u);
    EXPECT_FALSE(accessor.empty());
}

TEST_F(ChildElements, AtAndIndexGiveTheElementsInTheOrderOfTheCollection) {
    const ChildElementAccessor accessor = collection;
    for (std::size_t index = 0; index < 3; ++index) {
        EXPECT_EQ(&accessor.at(index), &elements[index]);
        EXPECT_EQ(&accessor[index], &elements[index]);
    }
}

TEST_F(ChildElements, AtThrowsAtAndPastTheCountWithIndexAndCount) {
    const ChildElementAccessor accessor = collection;
    EXPECT_EQ(outOfRangeText(accessor, 3),
              "child element index 3 out of range: element has 3 child(ren)");
    EXPECT_EQ(outOfRangeText(accessor, 18446744073709551615u),
              "child element index 18446744073709551615 out of range: element has 3 child(ren)");
}

TEST_F(ChildElements, FrontAndBackAreTheFirstAndTheLast) {
    const ChildElementAccessor accessor = collection;
    EXPECT_EQ(&accessor.front(), &elements[0]);
    EXPECT_EQ(&accessor.back(), &elements[2]);
}

TEST_F(ChildElements, TheCountIsASnapshot) {
    const ChildElementAccessor before = collection;
    collection.elements.pop_back();
    EXPECT_EQ(before.size(), 3u);
    EXPECT_EQ(before.end() - before.begin(), 3);
    EXPECT_EQ(ChildElementAccessor(collection).size(), 2u);
}

TEST_F(ChildElements, TheCountIsReadOnce) {
    class Counting : public FakeChildren {
    public:
        mutable int reads = 0;
        [[nodiscard]] std::size_t elementCount() const override {
            ++reads;
            return FakeChildren::elementCount();
        }
    };
    Counting counting;
    counting.elements = collection.elements;
    const ChildElementAccessor accessor = counting;
    static_cast<void>(accessor.size());
    static_cast<void>(accessor.at(2));
    static_cast<void>(accessor.back());
    static_cast<void>(accessor.end());
    EXPECT_EQ(counting.reads, 1);
}

TEST_F(ChildElements, ARangeLoopOverATemporaryAccessorVisitsAll) {
    FakeElement parent;
    parent.children.elements = collection.elements;
    std::vector<const Element*> visited;
    for (const Element& element : parent.childElements()) {
        visited.push_back(&element);
    }
    EXPECT_EQ(visited, addresses());
}

TEST_F(ChildElements, ForwardAndBackwardIterationAreMirrorImages) {
    const ChildElementAccessor accessor = collection;
    std::vector<const Element*> forward;
    for (auto place = accessor.cbegin(); place != accessor.cend(); ++place) {
        forward.push_back(&*place);
    }
    EXPECT_EQ(forward, addresses());
    std::vector<const Element*> backward;
    for (auto place = accessor.crbegin(); place != accessor.crend(); ++place) {
        backward.push_back(&*place);
    }
    std::ranges::reverse(backward);
    EXPECT_EQ(backward, addresses());
    EXPECT_EQ(accessor.rbegin().base(), accessor.end());
    EXPECT_EQ(accessor.rend().base(), accessor.begin());
}

TEST_F(ChildElements, IteratorsMoveByAnyDistance) {
    const ChildElementAccessor accessor = collection;
    Iterator place = accessor.begin();
    EXPECT_EQ(&*place++, &elements[0]);
    EXPECT_EQ(&*place, &elements[1]);
    EXPECT_EQ(&*place--, &elements[1]);
    EXPECT_EQ(&*place, &elements[0]);
    EXPECT_EQ(&*(place + 2), &elements[2]);
    EXPECT_EQ(&*(1 + place), &elements[1]);
    EXPECT_EQ(&place[2], &elements[2]);
    place += 2;
    EXPECT_EQ(&*(place - 1), &elements[1]);
    place -= 2;
    EXPECT_EQ(&*place, &elements[0]);
    EXPECT_EQ(&*++place, &elements[1]);
    EXPECT_EQ(&*--place, &elements[0]);
    EXPECT_EQ(place->name(), "valve");
}

TEST_F(ChildElements, IteratorsAreOrderedAndSubtractedByTheirPlaces) {
    const ChildElementAccessor accessor = collection;
    EXPECT_EQ(accessor.end() - accessor.begin(), 3);
    EXPECT_EQ(accessor.begin() - accessor.end(), -3);
    EXPECT_LT(accessor.begin(), accessor.begin() + 1);
    EXPECT_GT(accessor.end(), accessor.begin());
    EXPECT_EQ(accessor.begin() + 3, accessor.end());
}

TEST_F(ChildElements, IteratorsOfDifferentAccessorsAreNotEqual) {
    const ChildElementAccessor one = collection;
    const ChildElementAccessor other = collection;
    EXPECT_NE(one.begin(), other.begin());
}

TEST_F(ChildElements, CopiesGiveTheSameElements) {
    const ChildElementAccessor accessor = collection;
    ChildElementAccessor copy;
    copy = accessor;
    EXPECT_EQ(copy.size(), 3u);
    EXPECT_EQ(&copy.at(1), &elements[1]);
}

} // namespace
