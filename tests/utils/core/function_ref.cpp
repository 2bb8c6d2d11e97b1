#include <corvane/utils/core/function_ref.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace {

using corvane::utils::core::function_ref;

int twice(int number) {
    return 2 * number;
}
int twiceQuietly(int number) noexcept {
    return 2 * number;
}

/// Says through which kind of access it was called.
struct Overloaded {
    std::string operator()() { return "mutable"; }
    std::string operator()() const { return "const"; }
};
struct MutableOnly {
    int operator()() { return ++calls; }
    int calls = 0;
};
struct Throwing {
    int operator()() const { return 1; }
};
struct Quiet {
    int operator()() const noexcept { return 1; }
};
struct Shape {
    int side = 3;
    int area() const { return side * side; }
};

static_assert(std::is_trivially_copyable_v<function_ref<void()>>);
static_assert(!std::is_default_constructible_v<function_ref<void()>>);
static_assert(!std::is_constructible_v<function_ref<void()>, std::nullptr_t>);
static_assert(std::is_nothrow_constructible_v<function_ref<int(int)>, decltype(twice)&>);

// What can be called decides what can be bound.
static_assert(!std::is_constructible_v<function_ref<int(std::string)>, decltype(twice)&>);
static_assert(!std::is_constructible_v<function_ref<std::string(int)>, decltype(twice)&>);
static_assert(std::is_constructible_v<function_ref<int()>, MutableOnly&>);
static_assert(std::is_constructible_v<function_ref<int()>, MutableOnly>);
static_assert(!std::is_constructible_v<function_ref<int()>, const MutableOnly&>);
static_assert(!std::is_constructible_v<function_ref<int() const>, MutableOnly&>);
static_assert(!std::is_constructible_v<function_ref<int() noexcept>, Throwing&>);
static_assert(std::is_constructible_v<function_ref<int() noexcept>, Quiet&>);
static_assert(std::is_constructible_v<function_ref<int() const noexcept>, Quiet&>);
static_assert(!std::is_constructible_v<function_ref<int(int) noexcept>, decltype(twice)&>);
static_assert(std::is_constructible_v<function_ref<int(int) noexcept>, decltype(twiceQuietly)&>);
// Members are not callables here.
static_assert(!std::is_constructible_v<function_ref<int(const Shape&)>, decltype(&Shape::area)>);

// A callable that is not a function would leave a dangling reference.
static_assert(!std::is_assignable_v<function_ref<int()>&, Throwing>);
static_assert(!std::is_assignable_v<function_ref<int()>&, Throwing&>);
static_assert(std::is_assignable_v<function_ref<int(int)>&, int (*)(int)>);
static_assert(std::is_assignable_v<function_ref<int(int)>&, function_ref<int(int)>>);

static_assert(std::is_same_v<decltype(function_ref(&twice)), function_ref<int(int)>>);
static_assert(
    std::is_same_v<decltype(function_ref(&twiceQuietly)), function_ref<int(int) noexcept>>);
static_assert(noexcept(std::declval<function_ref<int() noexcept>>()()));
static_assert(!noexcept(std::declval<function_ref<int()>>()()));

TEST(FunctionRef, CallsAFunction) {
    const function_ref<int(int)> reference = twice;
    EXPECT_EQ(reference(21), 42);
    const function_ref<int(int) noexcept> quiet = &twiceQuietly;
    EXPECT_EQ(quiet(4), 8);
    const function_ref<int(int)> converted = &twiceQuietly;
    EXPECT_EQ(converted(5), 10);
}

TEST(FunctionRef, CallsTheObjectItselfAndNoCopy) {
    MutableOnly counter;
    const function_ref<int()> reference = counter;
    EXPECT_EQ(reference(), 1);
    EXPECT_EQ(reference(), 2);
    EXPECT_EQ(counter.calls, 2);
}

TEST(FunctionRef, CallsATemporaryForAsLongAsTheFullExpressionLasts) {
    const auto call = [](function_ref<int(int)> callable) { return callable(1); };
    int base = 41;
    EXPECT_EQ(call([&base](int number) { return base + number; }), 42);
}

TEST(FunctionRef, CallsAMutableObjectAsMutableUnlessItsFormIsConst) {
    Overloaded object;
    EXPECT_EQ(function_ref<std::string()>(object)(), "mutable");
    EXPECT_EQ(function_ref<std::string() const>(object)(), "const");
    const Overloaded constant;
    EXPECT_EQ(function_ref<std::string()>(constant)(), "const");
}

TEST(FunctionRef, CopiesReferToTheSameCallable) {
    MutableOnly first;
    MutableOnly second;
    function_ref<int()> reference = first;
    const function_ref<int()> copy = reference;
    EXPECT_EQ(copy(), 1);
    reference = function_ref<int()>(second);
    EXPECT_EQ(reference(), 1);
    EXPECT_EQ(copy(), 2);
    EXPECT_EQ(first.calls, 2);
    EXPECT_EQ(second.calls, 1);
}

TEST(FunctionRef, CanBeAssignedAFunction) {
    int unused = 0;
    auto first = [&unused](int number) { return number + unused; };
    function_ref<int(int)> reference = first;
    reference = &twice;
    EXPECT_EQ(reference(3), 6);
}

TEST(FunctionRef, ForwardsMoveOnlyArgumentsAndReferences) {
    auto take = [](std::unique_ptr<int> pointer, int& target) { target = *pointer; };
    const function_ref<void(std::unique_ptr<int>, int&)> reference = take;
    int target = 0;
    reference(std::make_unique<int>(7), target);
    EXPECT_EQ(target, 7);
}

TEST(FunctionRef, DropsAResultThatItsFormDoesNotHave) {
    MutableOnly counter;
    const function_ref<void()> reference = counter;
    reference();
    EXPECT_EQ(counter.calls, 1);
}

TEST(FunctionRef, ReturnsReferences) {
    int target = 1;
    auto get = [&target]() -> int& { return target; };
    const function_ref<int&()> reference = get;
    reference() = 5;
    EXPECT_EQ(target, 5);
}

TEST(FunctionRef, LetsExceptionsThrough) {
    auto fail = [] { throw std::string("text"); };
    const function_ref<void()> reference = fail;
    EXPECT_THROW(reference(), std::string);
}

TEST(FunctionRef, RefersToAStdFunction) {
    const std::function<int(int)> function = twice;
    const function_ref<int(int)> reference = function;
    EXPECT_EQ(reference(8), 16);
}

} // namespace
