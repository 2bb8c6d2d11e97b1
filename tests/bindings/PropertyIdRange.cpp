#include <corvane/workbench/bindings/PropertyIdRange.hpp>

#include <corvane/workbench/bindings/PropertyKey.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace corvane::workbench::bindings {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const PropertyKey kA;
const PropertyKey kB;

std::vector<PropertyId> items(PropertyIdRange range) {
    return {range.begin(), range.end()};
}

struct Options {
    PropertyIdRange list;
};

std::vector<PropertyId> itemsOf(const Options& options) {
    return items(options.list);
}

TEST(PropertyIdRange, IsEmptyByDefault) {
    EXPECT_TRUE(PropertyIdRange().empty());
    EXPECT_EQ(PropertyIdRange().size(), 0U);
    EXPECT_THAT(items({}), IsEmpty());
}

TEST(PropertyIdRange, IsMadeFromABracedListOfKeys) {
    EXPECT_THAT(items({kB, kA}), ElementsAre(kB.id(), kA.id()));
    EXPECT_THAT(itemsOf({.list = {kA}}), ElementsAre(kA.id()));
}

TEST(PropertyIdRange, IsMadeFromAnArrayAVectorOrASpan) {
    const PropertyId plain[] = {kA, kB};
    const std::array<PropertyId, 2> array = {kB, kA};
    const std::vector<PropertyId> vector = {kB};
    const std::span<const PropertyId> span = array;
    EXPECT_THAT(items(plain), ElementsAre(kA.id(), kB.id()));
    EXPECT_THAT(items(array), ElementsAre(kB.id(), kA.id()));
    EXPECT_THAT(items(span), ElementsAre(kB.id(), kA.id()));
    EXPECT_THAT(itemsOf({.list = vector}), ElementsAre(kB.id()));
}

TEST(PropertyIdRange, IsMadeFromItsFirstAndOnePastItsLastElement) {
    const std::array<PropertyId, 2> array = {kA, kB};
    const PropertyIdRange range(array.data(), array.data() + 1);
    EXPECT_EQ(range.begin(), array.data());
    EXPECT_EQ(range.end(), array.data() + 1);
    EXPECT_EQ(range.size(), 1U);
}

} // namespace
} // namespace corvane::workbench::bindings
