#include <corvane/workbench/bindings/PropertyChangedCallback.hpp>

#include "Trace.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

namespace corvane::workbench::bindings {
namespace {

using test::Trace;

static_assert(sizeof(Action) == 4);
static_assert(static_cast<int>(Action::Update) == 0);
static_assert(static_cast<int>(Action::Insert) == 1);
static_assert(static_cast<int>(Action::Remove) == 2);
static_assert(static_cast<int>(Action::Move) == 3);
static_assert(std::is_nothrow_move_constructible_v<PropertyChangedCallback>);
static_assert(!std::is_convertible_v<PropertyChangedCallback, bool>);
static_assert(!std::is_constructible_v<PropertyChangedCallback, int>);

auto detailed(Trace& trace) {
    return [&trace](Action action, std::size_t index) {
        trace.add(std::to_string(static_cast<int>(action)) + "@" + std::to_string(index));
    };
}

TEST(PropertyChangedCallback, HoldsNothingByDefault) {
    const PropertyChangedCallback callback;
    EXPECT_FALSE(callback);
    EXPECT_THROW(callback(), std::bad_function_call);
    EXPECT_THROW(callback(Action::Insert, 1), std::bad_function_call);
}

TEST(PropertyChangedCallback, HoldsNothingWhenMadeFromNull) {
    const PropertyChangedCallback callback = nullptr;
    EXPECT_FALSE(callback);
    EXPECT_THROW(callback(), std::bad_function_call);
}

TEST(PropertyChangedCallback, ThrowsWhenItHoldsAnEmptyFunction) {
    const PropertyChangedCallback plain = std::function<void()>();
    const PropertyChangedCallback told = std::function<void(Action, std::size_t)>();
    EXPECT_FALSE(plain);
    EXPECT_FALSE(told);
    EXPECT_THROW(plain(), std::bad_function_call);
    EXPECT_THROW(plain(Action::Move, 0), std::bad_function_call);
    EXPECT_THROW(told(), std::bad_function_call);
    EXPECT_THROW(told(Action::Move, 0), std::bad_function_call);
}

TEST(PropertyChangedCallback, TellsADetailedCallableTheActionAndTheIndex) {
    Trace trace;
    const PropertyChangedCallback callback = detailed(trace);
    EXPECT_TRUE(callback);
    callback(Action::Remove, 7);
    EXPECT_EQ(trace.take(), "2@7");
}

TEST(PropertyChangedCallback, TellsADetailedCallableUpdateAndZeroWhenCalledWithoutDetails) {
    Trace trace;
    const PropertyChangedCallback callback = detailed(trace);
    callback();
    EXPECT_EQ(trace.take(), "0@0");
}

TEST(PropertyChangedCallback, CallsAPlainCallableInBothForms) {
    Trace trace;
    const PropertyChangedCallback callback = trace.adder("called");
    EXPECT_TRUE(callback);
    callback();
    EXPECT_EQ(trace.take(), "called");
    callback(Action::Insert, 3);
    EXPECT_EQ(trace.take(), "called");
}

TEST(PropertyChangedCallback, PrefersTheDetailedFormOfACallableWithBoth) {
    Trace trace;
    const PropertyChangedCallback callback = [&trace](auto... details) {
        trace.add(std::to_string(sizeof...(details)));
    };
    callback();
    EXPECT_EQ(trace.take(), "2");
}

TEST(PropertyChangedCallback, PassesUnknownActionsThrough) {
    Trace trace;
    const PropertyChangedCallback callback = detailed(trace);
    callback(static_cast<Action>(41), 2);
    EXPECT_EQ(trace.take(), "41@2");
}

TEST(PropertyChangedCallback, IsCopiedAndMovedAsWhatItHolds) {
    Trace trace;
    PropertyChangedCallback callback = trace.adder("called");
    const PropertyChangedCallback copy = callback;
    callback();
    copy();
    EXPECT_EQ(trace.take(), "called called");

    PropertyChangedCallback moved = std::move(callback);
    moved();
    EXPECT_EQ(trace.take(), "called");
    moved = nullptr;
    EXPECT_FALSE(moved);
    moved = copy;
    moved();
    EXPECT_EQ(trace.take(), "called");
}

TEST(PropertyChangedCallback, KeepsWhatItHoldsWhenACopyThrows) {
    struct Uncopyable {
        explicit Uncopyable(Trace& trace) : trace_(&trace) {}
        Uncopyable(const Uncopyable& other) : trace_(other.trace_), copies_(other.copies_ + 1) {
            if (copies_ > 1) {
                throw std::runtime_error("copied");
            }
        }
        void operator()() const { trace_->add("uncopyable"); }
        Trace* trace_;
        int copies_ = 0;
    };
    Trace trace;
    const Uncopyable callable(trace);
    const PropertyChangedCallback source = callable;
    PropertyChangedCallback target = detailed(trace);
    EXPECT_THROW(target = source, std::runtime_error);
    target(Action::Insert, 5);
    EXPECT_EQ(trace.take(), "1@5");
}

TEST(PropertyChangedCallback, LetsExceptionsOfTheCallableThrough) {
    const PropertyChangedCallback callback = [] { throw std::runtime_error("failed"); };
    EXPECT_THROW(callback(), std::runtime_error);
}

} // namespace
} // namespace corvane::workbench::bindings
