#include "PrivateMember.hpp"
#include "TestContainer.hpp"
#include "Trace.hpp"
#include <corvane/workbench/bindings/PropertyContainer.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <type_traits>
#include <utility>

namespace corvane::workbench::bindings::test {

using Handle = PropertyContainer::ErrorCountSubscription;

struct HandleContainer {
    friend constexpr auto reveal(HandleContainer);
};
struct HandleId {
    friend constexpr auto reveal(HandleId);
};
template struct PrivateMember<HandleContainer, &Handle::container_>;
template struct PrivateMember<HandleId, &Handle::id_>;

namespace {

static_assert(std::is_nothrow_move_constructible_v<Handle>);

TEST(ErrorCountSubscription, IsEmptyByDefault) {
    const Handle handle;
    EXPECT_FALSE(handle);
}

TEST(ErrorCountSubscription, CallsTheSubscribersInTheOrderOfSubscription) {
    Trace trace;
    TestContainer container;
    const Handle first = container.subscribeToPropertyErrorCount(trace.adder("first"));
    const Handle second = container.subscribeToPropertyErrorCount(trace.adder("second"));
    container.setLocal(1);
    EXPECT_EQ(trace.take(), "first second");
}

TEST(ErrorCountSubscription, ReadsTheNewCountInItsCallback) {
    TestContainer container;
    std::uint64_t seen = 0;
    const Handle handle =
        container.subscribeToPropertyErrorCount([&] { seen = container.propertyErrorCount(); });
    container.setLocal(7);
    EXPECT_EQ(seen, 7U);
}

TEST(ErrorCountSubscription, KeepsOneOrderAcrossContainers) {
    // Both containers hear of the same change, and the ids of one process never repeat: a callback
    // that subscribes to the other container is called after those that were there.
    Trace trace;
    TestContainer container;
    TestContainer other;
    const Handle first = container.subscribeToPropertyErrorCount(trace.adder("a"));
    const Handle elsewhere = other.subscribeToPropertyErrorCount(trace.adder("b"));
    const Handle last = container.subscribeToPropertyErrorCount(trace.adder("c"));
    container.setLocal(1);
    other.setLocal(1);
    EXPECT_EQ(trace.take(), "a c b");
}

TEST(ErrorCountSubscription, EndsWhenItIsReset) {
    Trace trace;
    TestContainer container;
    Handle handle = container.subscribeToPropertyErrorCount(trace.adder("called"));
    handle.reset();
    EXPECT_FALSE(handle);
    container.setLocal(1);
    EXPECT_EQ(trace.take(), "");
}

TEST(ErrorCountSubscription, HasNoContainerAndNoIdAfterItWasResetOrMoved) {
    TestContainer container;
    const Handle other = container.subscribeToPropertyErrorCount([] {});
    Handle reset = container.subscribeToPropertyErrorCount([] {});
    EXPECT_NE(reset.*reveal(HandleId{}), 0U);
    Handle constructedFrom = container.subscribeToPropertyErrorCount([] {});
    Handle assignedFrom = container.subscribeToPropertyErrorCount([] {});
    reset.reset();
    Handle target(std::move(constructedFrom));
    target = std::move(assignedFrom);
    for (const Handle* const empty : {&reset, &constructedFrom, &assignedFrom}) {
        EXPECT_EQ(empty->*reveal(HandleContainer{}), nullptr);
        EXPECT_EQ(empty->*reveal(HandleId{}), 0U);
    }
    EXPECT_EQ(target.*reveal(HandleContainer{}), &container);
}

TEST(ErrorCountSubscription, ResettingAnEmptyOneDoesNothing) {
    Handle handle;
    handle.reset();
    EXPECT_FALSE(handle);
}

TEST(ErrorCountSubscription, EndsWhenItIsDestroyed) {
    Trace trace;
    TestContainer container;
    {
        const Handle handle = container.subscribeToPropertyErrorCount(trace.adder("called"));
    }
    container.setLocal(1);
    EXPECT_EQ(trace.take(), "");
}

TEST(ErrorCountSubscription, ACopyIsEmptyAndTheSourceKeepsItsSubscription) {
    Trace trace;
    TestContainer container;
    Handle handle = container.subscribeToPropertyErrorCount(trace.adder("called"));
    {
        const Handle copy = handle;
        EXPECT_FALSE(copy);
        EXPECT_TRUE(handle);
    }
    container.setLocal(1);
    EXPECT_EQ(trace.take(), "called");
}

TEST(ErrorCountSubscription, CopyAssignmentKeepsWhatTheTargetHad) {
    Trace trace;
    TestContainer container;
    Handle source = container.subscribeToPropertyErrorCount(trace.adder("source"));
    Handle target = container.subscribeToPropertyErrorCount(trace.adder("target"));
    target = source;
    container.setLocal(1);
    EXPECT_EQ(trace.take(), "source target");
    Handle empty;
    target = empty;
    EXPECT_TRUE(target);
}

TEST(ErrorCountSubscription, AMovedFromOneIsEmptyAndItsDestructionUnsubscribesNothing) {
    Trace trace;
    TestContainer container;
    Handle target;
    {
        Handle source = container.subscribeToPropertyErrorCount(trace.adder("called"));
        target = std::move(source);
        EXPECT_FALSE(source); // NOLINT: what a moved-from handle is, is the point
    }
    container.setLocal(1);
    EXPECT_EQ(trace.take(), "called");
}

TEST(ErrorCountSubscription, MovingIntoAnActiveOneEndsItsSubscriptionFirst) {
    Trace trace;
    TestContainer container;
    Handle source = container.subscribeToPropertyErrorCount(trace.adder("source"));
    Handle target = container.subscribeToPropertyErrorCount(trace.adder("target"));
    target = std::move(source);
    container.setLocal(1);
    EXPECT_EQ(trace.take(), "source");
}

TEST(ErrorCountSubscription, MovingIntoItselfKeepsTheSubscription) {
    Trace trace;
    TestContainer container;
    Handle handle = container.subscribeToPropertyErrorCount(trace.adder("called"));
    Handle& itself = handle;
    handle = std::move(itself);
    EXPECT_TRUE(handle);
    container.setLocal(1);
    EXPECT_EQ(trace.take(), "called");
}

TEST(ErrorCountSubscription, AnEmptyCallbackThrowsInItsTurnAndThoseAfterItAreNotCalled) {
    Trace trace;
    TestContainer container;
    const Handle first = container.subscribeToPropertyErrorCount(trace.adder("first"));
    Handle empty = container.subscribeToPropertyErrorCount(std::function<void()>());
    const Handle last = container.subscribeToPropertyErrorCount(trace.adder("last"));
    EXPECT_TRUE(empty);
    EXPECT_THROW(container.setLocal(1), std::bad_function_call);
    EXPECT_EQ(trace.take(), "first");
    empty.reset();
    container.setLocal(2);
    EXPECT_EQ(trace.take(), "first last");
}

} // namespace
} // namespace corvane::workbench::bindings::test
