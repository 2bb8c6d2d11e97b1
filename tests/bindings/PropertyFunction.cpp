#include <corvane/workbench/bindings/internal/PropertyFunction.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace corvane::workbench::bindings::internal {
namespace {

using Function = PropertyFunction<int>;

static_assert(sizeof(Function) == sizeof(void*));

TEST(PropertyFunction, IsFalseWithoutAFunction) {
    EXPECT_FALSE(Function());
    EXPECT_FALSE(Function(std::function<int()>()));
    EXPECT_TRUE(Function([] { return 1; }));
}

TEST(PropertyFunction, ReplacedWhileItRunsLivesUntilItHasReturned) {
    const auto witness = std::make_shared<int>(0);
    Function function;
    function = Function([&function, witness] {
        function = Function([] { return 2; });
        return static_cast<int>(witness.use_count());
    });
    EXPECT_EQ(function(), 2) << "the test's witness and the running function's";
    EXPECT_EQ(witness.use_count(), 1);
    EXPECT_EQ(function(), 2);
}

TEST(PropertyFunction, ACopyHasAStateOfItsOwn) {
    const Function counter([calls = 0]() mutable { return ++calls; });
    EXPECT_EQ(counter(), 1);
    const Function copy = counter; // NOLINT: the copy is the point
    EXPECT_EQ(copy(), 2);
    EXPECT_EQ(copy(), 3);
    EXPECT_EQ(counter(), 2);
}

TEST(PropertyFunction, MovingLeavesTheSourceEmpty) {
    Function source([] { return 1; });
    const Function target = std::move(source);
    EXPECT_FALSE(source); // NOLINT: what a moved-from function is, is the point
    EXPECT_EQ(target(), 1);
}

} // namespace
} // namespace corvane::workbench::bindings::internal
