// The order of Element's virtual operations is part of its contract with the workbench. It shows
// in the places that pointers to the operations stand for, where the compiler's binary interface
// is known.
#include "FakeElement.hpp"

#include <gtest/gtest.h>

#include <bit>
#include <cstddef>
#include <cstdint>

namespace {

using corvane::tests::FakeChildren;
using corvane::tests::FakeElement;

#if defined(__GNUC__) && defined(__x86_64__)

struct MemberPointer {
    std::uintptr_t place;
    std::ptrdiff_t adjustment;
};

// The position of an operation among the functions of its table. Two destructors come first.
template <class Operation>
std::uintptr_t position(Operation operation) {
    return (std::bit_cast<MemberPointer>(operation).place - 1) / sizeof(void*);
}

TEST(ElementVirtualOrder, TheOperationsOfAnElementFollowItsDestructorInTheFixedOrder) {
    EXPECT_EQ(position(&FakeElement::nameImpl), 2u);
    EXPECT_EQ(position(&FakeElement::primaryKeyImpl), 3u);
    EXPECT_EQ(position(&FakeElement::uuidImpl), 4u);
    EXPECT_EQ(position(&FakeElement::typeImpl), 5u);
    EXPECT_EQ(position(&FakeElement::categoryImpl), 6u);
    EXPECT_EQ(position(&FakeElement::isInvisibleRootImpl), 7u);
    EXPECT_EQ(position(&FakeElement::findAncestorImpl), 8u);
    EXPECT_EQ(position(&FakeElement::isDescendentOfImpl), 9u);
    EXPECT_EQ(position(&FakeElement::forEachAttributeImpl), 10u);
    EXPECT_EQ(position(&FakeElement::forEachEventImpl), 11u);
    EXPECT_EQ(position(&FakeElement::forEachTaskImpl), 12u);
    EXPECT_EQ(position(&FakeElement::childElementsImpl), 13u);
    EXPECT_EQ(position(&FakeElement::childElementImpl), 14u);
    EXPECT_EQ(position(&FakeElement::parentElementImpl), 15u);
    EXPECT_EQ(position(&FakeElement::skillElementImpl), 16u);
    EXPECT_EQ(position(&FakeElement::referenceDataImpl), 17u);
}

TEST(ElementVirtualOrder, TheOperationsOfAChildCollectionFollowItsDestructorInTheFixedOrder) {
    EXPECT_EQ(position(&FakeChildren::elementCount), 2u);
    EXPECT_EQ(position(&FakeChildren::elementAt), 3u);
}

#endif

} // namespace
