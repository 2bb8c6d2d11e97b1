#include <corvane/workbench/bindings/PropertyKey.hpp>

#include <gtest/gtest.h>

#include <type_traits>

namespace corvane::workbench::bindings {
namespace {

static_assert(!std::is_copy_constructible_v<PropertyKey>);
static_assert(!std::is_move_constructible_v<PropertyKey>);
static_assert(!std::is_copy_assignable_v<PropertyKey>);
static_assert(std::is_convertible_v<const PropertyKey&, PropertyId>);

const PropertyKey kSpeed;
constinit const PropertyKey kPressure;

TEST(PropertyKey, NamesAnotherPropertyThanAnyOtherKey) {
    EXPECT_NE(kSpeed.id(), kPressure.id());
}

TEST(PropertyKey, StandsForItsIdentifier) {
    const PropertyId id = kSpeed;
    EXPECT_EQ(id, kSpeed.id());
    EXPECT_TRUE(id);
}

} // namespace
} // namespace corvane::workbench::bindings
