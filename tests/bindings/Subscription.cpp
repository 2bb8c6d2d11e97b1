// The handle that owns a subscription to a property.
#include "PrivateMember.hpp"
#include "TestController.hpp"
#include "Trace.hpp"
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/bindings/PropertyData.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

namespace corvane::workbench::bindings::test {

using Subscription = PropertyController::Subscription;

struct SubscriptionController {
    friend constexpr auto reveal(SubscriptionController);
};
struct SubscriptionProperty {
    friend constexpr auto reveal(SubscriptionProperty);
};
struct SubscriptionId {
    friend constexpr auto reveal(SubscriptionId);
};
struct SubscribeUnmanaged {
    friend constexpr auto reveal(SubscribeUnmanaged);
};
struct Unsubscribe {
    friend constexpr auto reveal(Unsubscribe);
};
struct Properties {
    friend constexpr auto reveal(Properties);
};
template struct PrivateMember<SubscriptionController, &Subscription::controller_>;
template struct PrivateMember<SubscriptionProperty, &Subscription::property_>;
template struct PrivateMember<SubscriptionId, &Subscription::id_>;
template struct PrivateMember<SubscribeUnmanaged, &PropertyController::subscribeUnmanaged>;
template struct PrivateMember<Unsubscribe, &PropertyController::unsubscribe>;
template struct PrivateMember<Properties, &PropertyController::properties_>;

namespace {

static_assert(std::is_nothrow_move_constructible_v<Subscription>);
static_assert(std::is_nothrow_move_assignable_v<Subscription>);
static_assert(!std::is_convertible_v<Subscription, bool>);

const PropertyKey kSpeed;
const PropertyKey kPressure;

// Made before any test runs, so before anything else in this program subscribes.
PropertyController::PropertyData firstData;
const std::size_t kFirstId = firstData.subscribe({});
const std::size_t kSecondId = firstData.subscribe({});

std::size_t entries(TestController& controller) {
    PropertyController& base = controller;
    return (base.*reveal(Properties{})).size();
}

TEST(Subscription, TheFirstIdInTheProcessIsZeroAndTheNextIsOne) {
    EXPECT_EQ(kFirstId, 0U);
    EXPECT_EQ(kSecondId, 1U);
}

TEST(Subscription, KeepsControllerPropertyAndIdInThisOrder) {
    const Subscription subscription;
    EXPECT_EQ(offsetOf(subscription, reveal(SubscriptionController{})), 0);
    EXPECT_EQ(offsetOf(subscription, reveal(SubscriptionProperty{})), 8);
    EXPECT_EQ(offsetOf(subscription, reveal(SubscriptionId{})), 24);
    EXPECT_EQ(sizeof(Subscription), 32U);
}

TEST(Subscription, IsEmptyByDefault) {
    Subscription subscription;
    EXPECT_FALSE(subscription);
    EXPECT_EQ(subscription.*reveal(SubscriptionController{}), nullptr);
    EXPECT_EQ(subscription.*reveal(SubscriptionProperty{}), PropertyId());
    EXPECT_EQ(subscription.*reveal(SubscriptionId{}), 0U);
    subscription.reset();
    EXPECT_FALSE(subscription);
}

TEST(Subscription, HoldsTheControllerThePropertyAndAnIdThatGrows) {
    TestController controller;
    TestController other;
    const auto first = controller.subscribe(kSpeed, {});
    const auto second = other.subscribe(kPressure, {});
    EXPECT_TRUE(first);
    EXPECT_EQ(first.*reveal(SubscriptionController{}), &controller);
    EXPECT_EQ(first.*reveal(SubscriptionProperty{}), kSpeed.id());
    EXPECT_EQ(second.*reveal(SubscriptionController{}), &other);
    EXPECT_EQ(second.*reveal(SubscriptionProperty{}), kPressure.id());
    EXPECT_EQ(second.*reveal(SubscriptionId{}), first.*reveal(SubscriptionId{}) + 1);
}

TEST(Subscription, CallsSubscribersInTheOrderOfSubscriptionUntilTheyAreReset) {
    Trace trace;
    TestController controller;
    auto first = controller.subscribe(kSpeed, {.value = trace.adder("first")});
    const auto second = controller.subscribe(kSpeed, {.value = trace.adder("second")});
    controller.publishValue(kSpeed, Action::Update, 0);
    EXPECT_EQ(trace.take(), "first second");
    first.reset();
    EXPECT_FALSE(first);
    controller.publishValue(kSpeed, Action::Update, 0);
    EXPECT_EQ(trace.take(), "second");
}

TEST(Subscription, HasNoPropertyAndNoIdAfterItWasReset) {
    TestController controller;
    const auto other = controller.subscribe(kSpeed, {});
    auto subscription = controller.subscribe(kSpeed, {});
    subscription.reset();
    EXPECT_EQ(subscription.*reveal(SubscriptionController{}), nullptr);
    EXPECT_EQ(subscription.*reveal(SubscriptionProperty{}), PropertyId());
    EXPECT_EQ(subscription.*reveal(SubscriptionId{}), 0U);
}

TEST(Subscription, HasNoPropertyAndNoIdAfterItWasAssignedAway) {
    TestController controller;
    Subscription target;
    auto source = controller.subscribe(kSpeed, {});
    target = std::move(source);
    EXPECT_EQ(source.*reveal(SubscriptionController{}), nullptr);
    EXPECT_EQ(source.*reveal(SubscriptionProperty{}), PropertyId());
    EXPECT_EQ(source.*reveal(SubscriptionId{}), 0U);
    EXPECT_EQ(target.*reveal(SubscriptionProperty{}), kSpeed.id());
}

TEST(Subscription, EndsWhenItIsDestroyed) {
    Trace trace;
    TestController controller;
    {
        const auto subscription = controller.subscribe(kSpeed, {.value = trace.adder("value")});
    }
    controller.publishValue(kSpeed, Action::Update, 0);
    EXPECT_EQ(trace.take(), "");
}

TEST(Subscription, ResettingDestroysTheCallbacks) {
    TestController controller;
    const auto witness = std::make_shared<int>(0);
    auto subscription = controller.subscribe(
        kSpeed, {.value = [witness] {}, .state = [witness] {}, .visibility = [witness] {}});
    EXPECT_EQ(witness.use_count(), 4);
    subscription.reset();
    EXPECT_EQ(witness.use_count(), 1);
}

TEST(Subscription, ACopyIsEmptyAndItsDestructionLeavesTheSourceSubscribed) {
    Trace trace;
    TestController controller;
    const auto subscription = controller.subscribe(kSpeed, {.value = trace.adder("value")});
    {
        const Subscription copy = subscription;
        EXPECT_FALSE(copy);
    }
    EXPECT_TRUE(subscription);
    controller.publishValue(kSpeed, Action::Update, 0);
    EXPECT_EQ(trace.take(), "value");
}

TEST(Subscription, CopyAssignmentChangesNothing) {
    Trace trace;
    TestController controller;
    auto target = controller.subscribe(kSpeed, {.value = trace.adder("target")});
    const auto source = controller.subscribe(kSpeed, {.value = trace.adder("source")});
    EXPECT_EQ(&(target = source), &target);
    controller.publishValue(kSpeed, Action::Update, 0);
    EXPECT_EQ(trace.take(), "target source");
    target = Subscription(target);
    EXPECT_FALSE(target);
}

TEST(Subscription, MovingTakesTheSubscriptionAndLeavesTheSourceEmpty) {
    Trace trace;
    TestController controller;
    auto source = controller.subscribe(kSpeed, {.value = trace.adder("value")});
    auto target = std::move(source);
    EXPECT_FALSE(source);
    EXPECT_EQ(source.*reveal(SubscriptionProperty{}), PropertyId());
    EXPECT_EQ(source.*reveal(SubscriptionId{}), 0U);
    EXPECT_TRUE(target);
    source.reset();
    controller.publishValue(kSpeed, Action::Update, 0);
    EXPECT_EQ(trace.take(), "value");
}

TEST(Subscription, MovingIntoAnActiveOneUnsubscribesItsOldCallbacksFirst) {
    Trace trace;
    TestController controller;
    auto target = controller.subscribe(kSpeed, {.value = trace.adder("old")});
    auto source = controller.subscribe(kSpeed, {.value = trace.adder("new")});
    target = std::move(source);
    EXPECT_TRUE(target);
    EXPECT_FALSE(source);
    controller.publishValue(kSpeed, Action::Update, 0);
    EXPECT_EQ(trace.take(), "new");
}

TEST(Subscription, MovingIntoItselfKeepsTheSubscription) {
    Trace trace;
    TestController controller;
    auto subscription = controller.subscribe(kSpeed, {.value = trace.adder("value")});
    auto& same = subscription;
    subscription = std::move(same);
    EXPECT_TRUE(subscription);
    controller.publishValue(kSpeed, Action::Update, 0);
    EXPECT_EQ(trace.take(), "value");
}

TEST(Subscription, ToAnUnknownPropertyCreatesAnEntryAndResettingItRemovesTheEntry) {
    TestController controller;
    EXPECT_TRUE(controller.propertyVisible(kSpeed));
    EXPECT_EQ(entries(controller), 0U);
    auto subscription = controller.subscribe(kSpeed, {});
    EXPECT_EQ(entries(controller), 1U);
    EXPECT_TRUE(controller.propertyVisible(kSpeed));
    subscription.reset();
    EXPECT_EQ(entries(controller), 0U);
    EXPECT_TRUE(controller.propertyVisible(kSpeed));
}

TEST(Subscription, ResettingTheLastOneToAConfiguredPropertyKeepsItsEntry) {
    TestController controller([](TestController::Context& context) {
        context.configure(kSpeed, {.state = [] { return failure(); }});
    });
    auto subscription = controller.subscribe(kSpeed, {});
    EXPECT_EQ(controller.propertyState(kSpeed).error(), L"wrong");
    subscription.reset();
    EXPECT_EQ(entries(controller), 1U);
    EXPECT_EQ(controller.propertyState(kSpeed).error(), L"wrong");
}

TEST(Subscription, ReleasingAnIdThatIsNoLongerPresentDoesNothing) {
    TestController controller;
    PropertyController& base = controller;
    const auto subscription = controller.subscribe(kSpeed, {});
    (base.*reveal(Unsubscribe{}))(kSpeed, 0);
    (base.*reveal(Unsubscribe{}))(kPressure, subscription.*reveal(SubscriptionId{}));
    EXPECT_EQ(entries(controller), 1U);
}

TEST(Subscription, DoesNotConfigureTheController) {
    TestController controller;
    auto subscription = controller.subscribe(kSpeed, {});
    subscription.reset();
    EXPECT_EQ(controller.configurations, 0);
}

TEST(Subscription, AnUnmanagedOneLivesAsLongAsTheController) {
    Trace trace;
    const auto witness = std::make_shared<int>(0);
    {
        TestController controller;
        PropertyController& base = controller;
        (base.*reveal(SubscribeUnmanaged{}))(kSpeed,
                                             {.value = [&trace, witness] { trace.add("value"); }});
        controller.publishValue(kSpeed, Action::Update, 0);
        EXPECT_EQ(trace.take(), "value");
        EXPECT_EQ(witness.use_count(), 2);
    }
    EXPECT_EQ(witness.use_count(), 1);
}

TEST(Subscription, OwnedByItsOwnCallbackEndsWithTheController) {
    auto owner = std::make_shared<Subscription>();
    const std::weak_ptr<Subscription> witness = owner;
    {
        TestController controller;
        *owner = controller.subscribe(kSpeed, {.value = [owner] {}});
        owner.reset();
        EXPECT_FALSE(witness.expired());
    }
    EXPECT_TRUE(witness.expired());
}

} // namespace
} // namespace corvane::workbench::bindings::test
