// The order of Element's virtual operations is part of its contract with the workbench. It shows
// in the places that pointers to the operations stand for, where the compiler's binary interface
// is known.
#include "FakeElement.hpp"
#include "virtualPosition.hpp"

#include <gtest/gtest.h>

namespace {

using corvane::tests::FakeChildren;
using corvane::tests::FakeElement;
using corvane::tests::virtualPosition;

TEST(ElementVirtualOrder, TheOperationsOfAnElementFollowItsDestructorInTheFixedOrder) {
    if (!corvane::tests::kVirtualPositionsKnown) {
        GTEST_SKIP() << "the compiler's binary interface is not known here";
    }
    EXPECT_EQ(virtualPosition(&FakeElement::nameImpl), 2u);
    EXPECT_EQ(virtualPosition(&FakeElement::primaryKeyImpl), 3u);
    EXPECT_EQ(virtualPosition(&FakeElement::uuidImpl), 4u);
    EXPECT_EQ(virtualPosition(&FakeElement::typeImpl), 5u);
    EXPECT_EQ(virtualPosition(&FakeElement::categoryImpl), 6u);
    EXPECT_EQ(virtualPosition(&FakeElement::isInvisibleRootImpl), 7u);
    EXPECT_EQ(virtualPosition(&FakeElement::findAncestorImpl), 8u);
    EXPECT_EQ(virtualPosition(&FakeElement::isDescendentOfImpl), 9u);
    EXPECT_EQ(virtualPosition(&FakeElement::forEachAttributeImpl), 10u);
    EXPECT_EQ(virtualPosition(&FakeElement::forEachEventImpl), 11u);
    EXPECT_EQ(virtualPosition(&FakeElement::forEachTaskImpl), 12u);
    EXPECT_EQ(virtualPosition(&FakeElement::childElementsImpl), 13u);
    EXPECT_EQ(virtualPosition(&FakeElement::childElementImpl), 14u);
    EXPECT_EQ(virtualPosition(&FakeElement::parentElementImpl), 15u);
    EXPECT_EQ(virtualPosition(&FakeElement::skillElementImpl), 16u);
    EXPECT_EQ(virtualPosition(&FakeElement::referenceDataImpl), 17u);
}

TEST(ElementVirtualOrder, TheOperationsOfAChildCollectionFollowItsDestructorInTheFixedOrder) {
    if (!corvane::tests::kVirtualPositionsKnown) {
        GTEST_SKIP() << "the compiler's binary interface is not known here";
    }
    EXPECT_EQ(virtualPosition(&FakeChildren::elementCount), 2u);
    EXPECT_EQ(virtualPosition(&FakeChildren::elementAt), 3u);
}

} // namespace
