#include <corvane/workbench/bindings/PropertyId.hpp>

#include "TestController.hpp"
#include <corvane/workbench/bindings/PropertyKey.hpp>

#include <gtest/gtest.h>

#include <bit>
#include <type_traits>

namespace corvane::workbench::bindings {
namespace {

using test::TestController;

static_assert(sizeof(PropertyId) == 2 * sizeof(std::uint64_t));
static_assert(std::is_trivially_copyable_v<PropertyId>);
static_assert(std::is_nothrow_default_constructible_v<PropertyId>);
static_assert(!std::is_constructible_v<PropertyId, const void*>);
static_assert(!std::is_constructible_v<PropertyId, std::array<std::uint64_t, 2>>);
static_assert(!std::is_convertible_v<PropertyId, bool>);

PropertyId words(std::uint64_t first, std::uint64_t second) {
    return TestController::propertyId({first, second});
}

TEST(PropertyId, IsEmptyByDefault) {
    EXPECT_FALSE(PropertyId());
    EXPECT_EQ(PropertyId(), words(0, 0));
}

TEST(PropertyId, IsEmptyWhenBothWordsAreZero) {
    EXPECT_FALSE(words(0, 0));
}

TEST(PropertyId, IsNotEmptyWhenEitherWordIsNotZero) {
    EXPECT_TRUE(words(1, 0));
    EXPECT_TRUE(words(0, 1));
}

TEST(PropertyId, MadeFromAnAddressIsNotEmpty) {
    static const PropertyKey key;
    EXPECT_TRUE(key.id());
}

TEST(PropertyId, MadeFromAnAddressEqualsTheOneMadeFromTheAddressAndZero) {
    // A key has no other members, so the address of its only one is its own.
    static const PropertyKey key;
    EXPECT_EQ(key.id(), words(std::bit_cast<std::uintptr_t>(&key), 0));
}

TEST(PropertyId, IsEqualWhenBothWordsAre) {
    EXPECT_EQ(words(3, 4), words(3, 4));
    EXPECT_NE(words(3, 4), words(4, 3));
    EXPECT_NE(words(3, 4), words(3, 5));
    EXPECT_NE(words(3, 4), words(2, 4));
}

TEST(PropertyId, IsOrderedByTheFirstWordAndThenByTheSecond) {
    EXPECT_LT(words(1, 5), words(2, 0));
    EXPECT_LT(words(2, 0), words(2, 1));
    EXPECT_EQ(words(2, 1) <=> words(2, 1), std::strong_ordering::equal);
}

TEST(PropertyId, ComparesWordsAsUnsignedNumbers) {
    EXPECT_LT(words(1, 0), words(0x8000'0000'0000'0000U, 0));
    EXPECT_LT(words(0, 1), words(0, 0xffff'ffff'ffff'ffffU));
}

TEST(PropertyId, HashesToTheFirstWordXorTheSecond) {
    const std::hash<PropertyId> hash;
    EXPECT_EQ(hash(PropertyId()), 0U);
    EXPECT_EQ(hash(words(0x0f0f, 0x00ff)), 0x0ff0U);
    EXPECT_EQ(hash(words(0xccb3'0326'e8d3'6e40U, 0)), 0xccb3'0326'e8d3'6e40U);
}

TEST(PropertyId, IsCopiedWithBothWords) {
    PropertyId id = words(1, 2);
    const PropertyId copy = id;
    id = words(3, 4);
    EXPECT_EQ(copy, words(1, 2));
    EXPECT_EQ(id, words(3, 4));
}

} // namespace
} // namespace corvane::workbench::bindings
