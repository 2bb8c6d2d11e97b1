#include <corvane/workbench/bindings/PropertyController.hpp>

#include "PrivateMember.hpp"
#include "TestContainer.hpp"
#include "TestController.hpp"
#include "Trace.hpp"
#include <corvane/workbench/bindings/CrossReferenceController.hpp>
#include <corvane/workbench/bindings/PropertyData.hpp>
#include <corvane/workbench/bindings/PropertyHandle.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <type_traits>
#include <utility>

namespace corvane::workbench::bindings::test {

struct ControllerConfigured {
    friend constexpr auto reveal(ControllerConfigured);
};
struct ControllerProperties {
    friend constexpr auto reveal(ControllerProperties);
};
struct ControllerErrorCount {
    friend constexpr auto reveal(ControllerErrorCount);
};
struct ConfigureProperties {
    friend constexpr auto reveal(ConfigureProperties);
};
struct ControllerNotificationRaised {
    friend constexpr auto reveal(ControllerNotificationRaised);
};
struct ControllerLocalCount {
    friend constexpr auto reveal(ControllerLocalCount);
};
struct ControllerUpdateErrorCount {
    friend constexpr auto reveal(ControllerUpdateErrorCount);
};
template struct PrivateMember<ControllerConfigured, &PropertyController::propertiesConfigured_>;
template struct PrivateMember<ControllerProperties, &PropertyController::properties_>;
template struct PrivateMember<ControllerErrorCount, &PropertyController::cachedPropertyErrorCount_>;
template struct PrivateMember<ConfigureProperties, &PropertyController::configureProperties>;
template struct PrivateMember<ControllerNotificationRaised,
                              &PropertyController::propertyNotificationRaised>;
template struct PrivateMember<ControllerLocalCount, &PropertyController::localPropertyErrorCount>;
template struct PrivateMember<ControllerUpdateErrorCount,
                              &PropertyController::updateCachedPropertyErrorCount>;

namespace {

using testing::ElementsAre;
using Context = TestController::Context;

static_assert(std::is_abstract_v<PropertyController>);
static_assert(std::is_base_of_v<PropertyContainer, PropertyController>);
static_assert(std::has_virtual_destructor_v<PropertyController>);

const PropertyKey kA;
const PropertyKey kB;
const PropertyKey kC;
const PropertyKey kD;

class Reference : public CrossReferenceController {};

PropertyController::SubscriptionCallbacks all(Trace& trace, const std::string& name) {
    return {.value =
                [&trace, name](Action action, std::size_t index) {
                    trace.add(name + ".value" + std::to_string(static_cast<int>(action)) + "@" +
                              std::to_string(index));
                },
            .state = trace.adder(name + ".state"),
            .visibility = trace.adder(name + ".visibility")};
}

std::size_t entries(TestController& controller) {
    PropertyController& base = controller;
    return (base.*reveal(ControllerProperties{})).size();
}

// Fixed orders.

TEST(PropertyController, KeepsItsFieldsInTheFixedOrder) {
    const TestController controller;
    const PropertyController& base = controller;
    const auto configured = offsetOf(base, reveal(ControllerConfigured{}));
    const auto properties = offsetOf(base, reveal(ControllerProperties{}));
    const auto errors = offsetOf(base, reveal(ControllerErrorCount{}));
    EXPECT_LT(configured, properties);
    EXPECT_LT(properties, errors);
}

#if !defined(_MSC_VER)
TEST(PropertyController, AddsOneVirtualOperationBehindThoseOfTheContainer) {
    EXPECT_EQ(virtualSlot(reveal(ControllerLocalCount{})), 5U);
    EXPECT_EQ(virtualSlot(reveal(ControllerNotificationRaised{})), 6U);
    EXPECT_EQ(virtualSlot(reveal(ConfigureProperties{})), 7U);
}
#endif

// Configuring.

TEST(PropertyController, IsConfiguredOnceByTheFirstOperationThatNeedsIt) {
    const std::pair<const char*, std::function<void(TestController&)>> operations[] = {
        {"propertyState", [](TestController& c) { (void)c.propertyState(kA); }},
        {"propertyVisible", [](TestController& c) { (void)c.propertyVisible(kA); }},
        {"publishState", [](TestController& c) { c.publishState(kA); }},
        {"publishVisibility", [](TestController& c) { c.publishVisibility(kA); }},
        {"propertyErrorCount", [](TestController& c) { (void)c.propertyErrorCount(); }},
        {"forEachCrossReference",
         [](TestController& c) { c.forEachCrossReference([](CrossReferenceController&) {}, {}); }},
        {"subPropertyContainerListChanged",
         [](TestController& c) { c.subPropertyContainerListChanged({}); }},
        {"updateCachedPropertyErrorCount",
         [](TestController& c) {
             const PropertyController& base = c;
             (void)(base.*reveal(ControllerUpdateErrorCount{}))();
         }},
    };
    for (const auto& [name, operation] : operations) {
        TestController controller;
        operation(controller);
        EXPECT_EQ(controller.configurations, 1) << name;
        operation(controller);
        EXPECT_EQ(controller.configurations, 1) << name;
    }
}

TEST(PropertyController, IsNotConfiguredByOperationsOnExistingEntries) {
    TestController controller;
    auto subscription = controller.subscribe(kA, {});
    (void)controller.propertyHandle(kA);
    controller.publish(kA, Action::Update, 0);
    controller.publishValue(kA, Action::Update, 0);
    PropertyController& base = controller;
    (base.*reveal(ControllerNotificationRaised{}))(kA);
    subscription.reset();
    EXPECT_EQ(controller.configurations, 0);
}

TEST(PropertyController, IsConfiguredOnceThoughItsConfigurationAsksForAState) {
    TestController controller;
    bool stateWasGood = false;
    controller.onConfigure = [&](Context& context) {
        context.configure(kA, {.state = [] { return failure(); }});
        stateWasGood = controller.propertyState(kA).has_value();
    };
    EXPECT_EQ(controller.propertyState(kA).error(), L"wrong");
    EXPECT_EQ(controller.configurations, 1);
    EXPECT_TRUE(stateWasGood);
}

TEST(PropertyController, ConfiguresNothingByItself) {
    class Plain : public PropertyController {};
    Plain controller;
    EXPECT_TRUE(controller.propertyVisible(kA));
    EXPECT_TRUE(controller.propertyState(kA).has_value());
    EXPECT_EQ(controller.propertyErrorCount(), 0U);
}

TEST(PropertyController, ComputesVisibilityAndStateWhenTheConfigurationEnds) {
    TestController controller([](Context& context) {
        context.configure(kA, {.state = [] { return failure(L"empty"); }});
        context.configure(kB, {.visibility = [] { return false; }});
        context.configure(kC, {});
    });
    EXPECT_EQ(controller.propertyState(kA).error(), L"empty");
    EXPECT_TRUE(controller.propertyVisible(kA));
    EXPECT_TRUE(controller.propertyState(kB).has_value());
    EXPECT_FALSE(controller.propertyVisible(kB));
    EXPECT_TRUE(controller.propertyState(kC).has_value());
    EXPECT_TRUE(controller.propertyVisible(kC));
    EXPECT_EQ(controller.propertyErrorCount(), 1U);
}

TEST(PropertyController, DoesNotAskForTheStateOfAnInvisibleProperty) {
    int asked = 0;
    TestController controller([&](Context& context) {
        context.configure(kA, {.state =
                                   [&] {
                                       ++asked;
                                       return failure();
                                   },
                               .visibility = [] { return false; }});
    });
    EXPECT_FALSE(controller.propertyVisible(kA));
    EXPECT_TRUE(controller.propertyState(kA).has_value());
    EXPECT_EQ(controller.propertyErrorCount(), 0U);
    controller.publishState(kA);
    controller.publish(kA, Action::Update, 0);
    EXPECT_EQ(asked, 0);
}

TEST(PropertyController, TreatsAnUnknownPropertyAsGoodAndVisible) {
    TestController controller;
    EXPECT_TRUE(controller.propertyVisible(kA));
    EXPECT_TRUE(controller.propertyState(kA).has_value());
    EXPECT_EQ(&controller.propertyState(kA), &controller.propertyState(kB));
}

TEST(PropertyController, FillsTheEntryOfAnEarlySubscriberAndCallsBackWhatChanged) {
    Trace trace;
    TestController controller([](Context& context) {
        context.configure(kA, {.state = [] { return failure(); }});
        context.configure(kB, {.visibility = [] { return false; }});
        context.configure(kC,
                          {.state = [] { return success(); }, .visibility = [] { return true; }});
    });
    const auto a = controller.subscribe(kA, all(trace, "a"));
    const auto b = controller.subscribe(kB, all(trace, "b"));
    const auto c = controller.subscribe(kC, all(trace, "c"));
    EXPECT_EQ(entries(controller), 3U);
    EXPECT_EQ(controller.propertyErrorCount(), 1U);
    EXPECT_EQ(trace.take(), "a.state b.visibility");
    EXPECT_EQ(entries(controller), 3U);
}

TEST(PropertyController, ComputesEntriesInTheOrderOfTheirCreation) {
    Trace trace;
    TestController controller([&](Context& context) {
        const auto tracing = [&](const char* name) {
            return [&trace, name] {
                trace.add(name);
                return true;
            };
        };
        context.configure(kB, {.valueDependencies = {kC}, .visibility = tracing("b")});
        context.configure(kA, {.visibility = tracing("a")});
        context.configure(kC, {.visibility = tracing("c")});
        context.configure(kD, {.visibility = tracing("d")});
    });
    const auto early = controller.subscribe(kD, {});
    EXPECT_TRUE(controller.propertyVisible(kA));
    EXPECT_EQ(trace.take(), "d b c a");
}

TEST(PropertyController, ReplacesAllButTheDependentsWhenAPropertyIsConfiguredAgain) {
    Trace trace;
    Reference reference;
    TestContainer part;
    part.local = 2;
    TestController controller([&](Context& context) {
        context.configure(kA,
                          {.state = [] { return failure(); },
                           .visibility = [] { return false; },
                           .raisedProperties = {kD}},
                          {.subPropertyContainer = &part, .crossReferenceController = &reference});
        context.configure(kB, {.valueDependencies = {kA}});
        context.configure(kA, {});
    });
    const auto b = controller.subscribe(kB, all(trace, "b"));
    EXPECT_TRUE(controller.propertyVisible(kA));
    EXPECT_TRUE(controller.propertyState(kA).has_value());
    EXPECT_EQ(controller.propertyErrorCount(), 0U);
    int references = 0;
    controller.forEachCrossReference([&](CrossReferenceController&) { ++references; },
                                     {.includeInvisible = true});
    EXPECT_EQ(references, 0);
    controller.publishValue(kA, Action::Insert, 3);
    EXPECT_EQ(trace.take(), "b.value0@0");
}

TEST(PropertyController, LinksTheSubContainerAndCountsItsErrorsOnce) {
    Trace trace;
    TestContainer part("part", trace);
    part.local = 3;
    TestController controller(
        [&](Context& context) { context.configure(kA, {}, {.subPropertyContainer = &part}); });
    int published = 0;
    const auto counted = controller.subscribeToPropertyErrorCount([&] { ++published; });
    EXPECT_EQ(controller.propertyErrorCount(), 3U);
    EXPECT_EQ(part.enclosingPropertyContainer(), &controller);
    EXPECT_EQ(published, 1);
    EXPECT_EQ(trace.take(), "");
}

TEST(PropertyController, TakesASubContainerOutOfItsFormerContainer) {
    TestContainer former;
    TestContainer part;
    part.local = 2;
    part.setEnclosingPropertyContainer(former, {});
    EXPECT_EQ(former.propertyErrorCount(), 2U);
    TestController controller(
        [&](Context& context) { context.configure(kA, {}, {.subPropertyContainer = &part}); });
    EXPECT_EQ(controller.propertyErrorCount(), 2U);
    EXPECT_EQ(former.propertyErrorCount(), 0U);
}

TEST(PropertyController, RegistersReferencesBeforeThePropertyIsFilled) {
    Reference reference;
    TestController controller;
    controller.onConfigure = [&](Context& context) {
        context.configure(kA, {}, {.crossReferenceController = &reference});
        EXPECT_EQ(reference.referringController(), &controller);
    };
    controller.publishState(kA);
    EXPECT_EQ(reference.referringController(), &controller);
}

TEST(PropertyController, StaysConfiguredWhenItsConfigurationThrows) {
    TestController controller([](Context& context) {
        context.configure(kA, {.state = [] { return failure(); }});
        throw std::runtime_error("unfinished");
    });
    EXPECT_THROW((void)controller.propertyVisible(kA), std::runtime_error);
    EXPECT_EQ(controller.propertyState(kA).error(), L"wrong");
    EXPECT_EQ(controller.propertyErrorCount(), 1U);
    EXPECT_EQ(controller.configurations, 1);
}

TEST(PropertyController, DropsExceptionsOfOneEntryWhenTheConfigurationEndsAndGoesOn) {
    Trace trace;
    TestController controller([](Context& context) {
        context.configure(kA, {.state = []() -> PropertyController::PropertyState {
                              throw std::runtime_error("state");
                          }});
        context.configure(kB,
                          {.visibility = []() -> bool { throw std::runtime_error("visibility"); }});
        context.configure(kC, {.state = [] { return failure(); }});
    });
    const auto c = controller.subscribe(kC, {.state = [&] {
                                            trace.add("c");
                                            throw std::runtime_error("callback");
                                        }});
    EXPECT_NO_THROW((void)controller.propertyVisible(kA));
    EXPECT_EQ(trace.take(), "c");
    EXPECT_TRUE(controller.propertyState(kA).has_value());
    EXPECT_TRUE(controller.propertyVisible(kB));
    EXPECT_EQ(controller.propertyState(kC).error(), L"wrong");
    EXPECT_EQ(controller.propertyErrorCount(), 1U);
}

TEST(PropertyController, DropsExceptionsOfTheFinalRecountAndStillCountsItsOwnErrors) {
    TestContainer part;
    TestController controller([&](Context& context) {
        context.configure(kA, {.state = [] { return failure(); }}, {.subPropertyContainer = &part});
    });
    part.local = 1;
    int published = 0;
    const auto counted = controller.subscribeToPropertyErrorCount([&] {
        ++published;
        throw std::runtime_error("counted");
    });
    EXPECT_NO_THROW((void)controller.propertyVisible(kA));
    EXPECT_EQ(published, 2);
    EXPECT_EQ(controller.propertyErrorCount(), 2U);
}

TEST(PropertyController, CountsItsSubContainersBeforeItsOwnErrorsAlsoWhenARecountConfiguresIt) {
    Trace trace;
    TestController item([](Context& context) {
        context.configure(kC, {.state = [] { return failure(); }});
        context.configure(kD, {.state = [] { return failure(); }});
    });
    TestController owner([&](Context& context) {
        context.configure(kA, {.state = [] { return failure(); }});
        context.configure(kB, {}, {.subPropertyContainer = &item});
    });
    const auto counted = owner.subscribeToPropertyErrorCount(
        [&] { trace.add(std::to_string(owner.propertyErrorCount())); });
    owner.subPropertyContainerListChanged({});
    EXPECT_EQ(trace.take(), "2 3");
    EXPECT_EQ(owner.propertyErrorCount(), 3U);
}

TEST(PropertyController, LeavesAPropertyAloneWhoseSubContainerCannotBeLinked) {
    Reference reference;
    TestContainer part;
    part.onLocalQuery = [] { throw std::runtime_error("part"); };
    TestController controller([&](Context& context) {
        context.configure(kA, {.valueDependencies = {kB}, .state = [] { return failure(); }},
                          {.subPropertyContainer = &part, .crossReferenceController = &reference});
    });
    EXPECT_THROW((void)controller.propertyVisible(kA), std::runtime_error);
    EXPECT_EQ(entries(controller), 0U);
    EXPECT_EQ(part.enclosingPropertyContainer(), nullptr);
    EXPECT_EQ(reference.referringController(), nullptr);
    EXPECT_EQ(controller.propertyErrorCount(), 0U);
}

TEST(PropertyController, ConfiguresAPropertyThoughTheFormerContainerOfItsSubContainerFails) {
    TestContainer former;
    TestContainer part;
    part.local = 2;
    part.setEnclosingPropertyContainer(former, {});
    former.onErrorCountChanged = [] { throw std::runtime_error("former"); };
    TestController controller(
        [&](Context& context) { context.configure(kA, {}, {.subPropertyContainer = &part}); });
    EXPECT_THROW((void)controller.propertyVisible(kA), std::runtime_error);
    EXPECT_EQ(former.propertyErrorCount(), 0U);
    EXPECT_EQ(part.enclosingPropertyContainer(), &controller);
    EXPECT_EQ(controller.propertyErrorCount(), 2U);
}

// Publishing.

TEST(PropertyController, PublishingAnUnknownPropertyDoesNothing) {
    TestController controller;
    controller.publish(kA, Action::Update, 0);
    controller.publishValue(kA, Action::Update, 0);
    EXPECT_EQ(controller.configurations, 0);
    EXPECT_EQ(entries(controller), 0U);
}

TEST(PropertyController, PublishingTheStateOfAnUnknownPropertyOnlyConfigures) {
    TestController controller;
    controller.publishState(kA);
    EXPECT_EQ(controller.configurations, 1);
    controller.publishVisibility(kB);
    EXPECT_EQ(controller.configurations, 1);
    EXPECT_EQ(entries(controller), 0U);
}

TEST(PropertyController, PublishesValueThenStateOfEachSubscriberInTurn) {
    Trace trace;
    bool good = true;
    TestController controller([&](Context& context) {
        context.configure(kA, {.state = [&] { return successIf(good); }});
    });
    EXPECT_TRUE(controller.propertyVisible(kA));
    const auto first = controller.subscribe(kA, all(trace, "first"));
    const auto second = controller.subscribe(kA, all(trace, "second"));
    good = false;
    controller.publish(kA, Action::Move, 9);
    EXPECT_EQ(trace.take(), "first.value3@9 first.state second.value3@9 second.state");
    controller.publish(kA, Action::Update, 0);
    EXPECT_EQ(trace.take(), "first.value0@0 second.value0@0");
    EXPECT_EQ(controller.propertyErrorCount(), 1U);
}

TEST(PropertyController, PublishingTheValueLeavesTheStateAlone) {
    Trace trace;
    int asked = 0;
    TestController controller([&](Context& context) {
        context.configure(kA, {.state = [&] {
                              ++asked;
                              return success();
                          }});
    });
    const auto a = controller.subscribe(kA, all(trace, "a"));
    EXPECT_TRUE(controller.propertyVisible(kA));
    controller.publishValue(kA, Action::Update, 5);
    EXPECT_EQ(trace.take(), "a.value0@5");
    EXPECT_EQ(asked, 1);
}

TEST(PropertyController, PublishesTheStateOnlyWhenItChanged) {
    Trace trace;
    PropertyController::PropertyState state;
    TestController controller(
        [&](Context& context) { context.configure(kA, {.state = [&] { return state; }}); });
    const auto a = controller.subscribe(kA, all(trace, "a"));
    controller.publishState(kA);
    EXPECT_EQ(trace.take(), "");
    state = failure(L"too small");
    controller.publishState(kA);
    EXPECT_EQ(trace.take(), "a.state");
    controller.publishState(kA);
    EXPECT_EQ(trace.take(), "");
    state = failure(L"too large");
    controller.publishState(kA);
    EXPECT_EQ(trace.take(), "a.state");
    EXPECT_EQ(controller.propertyState(kA).error(), L"too large");
    state = success();
    controller.publishState(kA);
    EXPECT_EQ(trace.take(), "a.state");
}

TEST(PropertyController, PublishesStateBeforeVisibilityWhenAPropertyAppears) {
    Trace trace;
    bool shown = false;
    TestController controller([&](Context& context) {
        context.configure(kA,
                          {.state = [] { return failure(); }, .visibility = [&] { return shown; }});
    });
    EXPECT_FALSE(controller.propertyVisible(kA));
    const auto first = controller.subscribe(kA, all(trace, "first"));
    const auto second = controller.subscribe(kA, all(trace, "second"));
    shown = true;
    controller.publishVisibility(kA);
    EXPECT_EQ(trace.take(), "first.state first.visibility second.state second.visibility");
    EXPECT_EQ(controller.propertyErrorCount(), 1U);
    shown = false;
    controller.publishVisibility(kA);
    EXPECT_EQ(trace.take(), "first.state first.visibility second.state second.visibility");
    EXPECT_EQ(controller.propertyErrorCount(), 0U);
}

TEST(PropertyController, PublishingAnUnchangedVisibilityLeavesTheStateAlone) {
    bool good = true;
    TestController controller([&](Context& context) {
        context.configure(
            kA, {.state = [&] { return successIf(good); }, .visibility = [] { return true; }});
        context.configure(kB, {.state = [&] { return successIf(good); }});
    });
    EXPECT_TRUE(controller.propertyVisible(kA));
    good = false;
    controller.publishVisibility(kA);
    controller.publishVisibility(kB);
    EXPECT_TRUE(controller.propertyState(kA).has_value());
    EXPECT_TRUE(controller.propertyState(kB).has_value());
}

TEST(PropertyController, UpdatesDependentsOneLevelDeep) {
    Trace trace;
    TestController controller([](Context& context) {
        context.configure(kA, {.valueDependencies = {kB}});
        context.configure(kB, {.valueDependencies = {kC}});
    });
    const auto a = controller.subscribe(kA, all(trace, "a"));
    const auto b = controller.subscribe(kB, all(trace, "b"));
    EXPECT_TRUE(controller.propertyVisible(kA));
    controller.publishValue(kC, Action::Move, 7);
    EXPECT_EQ(trace.take(), "b.value0@0");
    controller.publish(kC, Action::Move, 7);
    EXPECT_EQ(trace.take(), "b.value0@0");
}

TEST(PropertyController, UpdatesStateAndVisibilityOfDependentsAfterTheSubscribers) {
    Trace trace;
    bool good = true;
    bool shown = true;
    TestController controller([&](Context& context) {
        context.configure(kA,
                          {.state = [&] { return successIf(good); }, .stateDependencies = {kD}});
        context.configure(kB,
                          {.visibility = [&] { return shown; }, .visibilityDependencies = {kD}});
        context.configure(kC, {.valueDependencies = {kD},
                               .state = [&] { return successIf(good); },
                               .stateDependencies = {kD},
                               .visibility = [&] { return shown; },
                               .visibilityDependencies = {kD}});
    });
    EXPECT_TRUE(controller.propertyVisible(kA));
    const auto a = controller.subscribe(kA, all(trace, "a"));
    const auto b = controller.subscribe(kB, all(trace, "b"));
    const auto c = controller.subscribe(kC, all(trace, "c"));
    const auto d = controller.subscribe(kD, all(trace, "d"));
    controller.publishValue(kD, Action::Update, 0);
    EXPECT_EQ(trace.take(), "d.value0@0 c.value0@0");
    good = false;
    controller.publishValue(kD, Action::Update, 0);
    EXPECT_EQ(trace.take(), "d.value0@0 a.state c.value0@0 c.state");
    EXPECT_EQ(controller.propertyErrorCount(), 2U);
    shown = false;
    controller.publish(kD, Action::Update, 0);
    EXPECT_EQ(trace.take(), "d.value0@0 b.visibility c.value0@0 c.state c.visibility");
    EXPECT_EQ(controller.propertyErrorCount(), 1U);
}

TEST(PropertyController, RecomputesTheStateOfADependentWhoseVisibilityChanged) {
    Trace trace;
    bool shown = false;
    TestController controller([&](Context& context) {
        context.configure(kA, {.state = [] { return failure(); },
                               .visibility = [&] { return shown; },
                               .visibilityDependencies = {kB}});
    });
    EXPECT_FALSE(controller.propertyVisible(kA));
    const auto a = controller.subscribe(kA, all(trace, "a"));
    shown = true;
    controller.publishValue(kB, Action::Update, 0);
    EXPECT_EQ(trace.take(), "a.state a.visibility");
    EXPECT_EQ(controller.propertyErrorCount(), 1U);
}

TEST(PropertyController, PublishingStateOrVisibilityNeitherUpdatesDependentsNorRaises) {
    Trace trace;
    bool good = true;
    bool shown = true;
    TestContainer list;
    TestController controller([&](Context& context) {
        context.configure(kA, {.state = [&] { return successIf(good); },
                               .visibility = [&] { return shown; },
                               .raisedProperties = {kD}});
        context.configure(kB, {.valueDependencies = {kA}});
    });
    controller.setEnclosingPropertyContainer(list, {});
    const auto b = controller.subscribe(kB, all(trace, "b"));
    good = false;
    controller.publishState(kA);
    shown = false;
    controller.publishVisibility(kA);
    EXPECT_EQ(trace.take(), "");
    EXPECT_TRUE(list.raised.empty());
}

TEST(PropertyController, APropertyThatDependsOnItselfHearsTwice) {
    Trace trace;
    TestController controller(
        [](Context& context) { context.configure(kA, {.valueDependencies = {kA}}); });
    const auto a = controller.subscribe(kA, all(trace, "a"));
    EXPECT_TRUE(controller.propertyVisible(kA));
    controller.publishValue(kA, Action::Insert, 2);
    EXPECT_EQ(trace.take(), "a.value1@2 a.value0@0");
}

TEST(PropertyController, SkipsADependentWhoseEntryIsGone) {
    Trace trace;
    TestController controller;
    controller.onConfigure = [&](Context& context) {
        context.configure(kA, {.valueDependencies = {kB}});
    };
    auto a = controller.subscribe(kA, all(trace, "a"));
    const auto b = controller.subscribe(kB, all(trace, "b"));
    EXPECT_TRUE(controller.propertyVisible(kA));
    controller.publishValue(kB, Action::Update, 0);
    EXPECT_EQ(trace.take(), "b.value0@0 a.value0@0");
    a.reset();
    EXPECT_EQ(entries(controller), 1U);
    controller.publishValue(kB, Action::Update, 0);
    EXPECT_EQ(trace.take(), "b.value0@0");
}

// Sub-containers, error counts, raised notifications.

TEST(PropertyController, RecountsItsSubContainersWhenOneAppearsOrDisappears) {
    bool shown = false;
    TestContainer part;
    part.local = 4;
    TestController controller([&](Context& context) {
        context.configure(kA, {.visibility = [&] { return shown; }, .visibilityDependencies = {kB}},
                          {.subPropertyContainer = &part});
    });
    EXPECT_EQ(controller.propertyErrorCount(), 0U);
    shown = true;
    controller.publishVisibility(kA);
    EXPECT_EQ(controller.propertyErrorCount(), 4U);
    shown = false;
    controller.publishValue(kB, Action::Update, 0);
    EXPECT_EQ(controller.propertyErrorCount(), 0U);
}

TEST(PropertyController, RecountsBeforeItsOwnErrorsAreReported) {
    Trace trace;
    bool shown = false;
    TestContainer part;
    part.local = 4;
    TestController controller([&](Context& context) {
        context.configure(kA,
                          {.state = [] { return failure(); }, .visibility = [&] { return shown; }},
                          {.subPropertyContainer = &part});
    });
    EXPECT_EQ(controller.propertyErrorCount(), 0U);
    const auto counted = controller.subscribeToPropertyErrorCount(
        [&] { trace.add(std::to_string(controller.propertyErrorCount())); });
    const auto a = controller.subscribe(kA, all(trace, "a"));
    shown = true;
    controller.publishVisibility(kA);
    EXPECT_EQ(trace.take(), "a.state a.visibility 4 5");
}

TEST(PropertyController, ReportsItsErrorCountOnlyWhenItChanged) {
    PropertyController::PropertyState state;
    TestController controller([&](Context& context) {
        context.configure(kA, {.state = [&] { return state; }});
        context.configure(kB, {.state = [] { return failure(); }});
    });
    EXPECT_EQ(controller.propertyErrorCount(), 1U);
    int published = 0;
    const auto counted = controller.subscribeToPropertyErrorCount([&] { ++published; });
    state = failure(L"one");
    controller.publishState(kA);
    EXPECT_EQ(published, 1);
    state = failure(L"other");
    controller.publishState(kA);
    EXPECT_EQ(published, 1);
    EXPECT_EQ(controller.propertyErrorCount(), 2U);
}

TEST(PropertyController, StoresItsErrorCountWithoutReportingWhenOnlyUpdated) {
    TestController controller;
    PropertyController& base = controller;
    EXPECT_FALSE((base.*reveal(ControllerUpdateErrorCount{}))());
    PropertyController::PropertyData bad;
    auto entry = (base.*reveal(ControllerProperties{})).findOrCreate(kA);
    entry->configure({.state = [] { return failure(); }}, {});
    (void)entry->publishState();
    int published = 0;
    const auto counted = controller.subscribeToPropertyErrorCount([&] { ++published; });
    EXPECT_TRUE((base.*reveal(ControllerUpdateErrorCount{}))());
    EXPECT_FALSE((base.*reveal(ControllerUpdateErrorCount{}))());
    EXPECT_EQ(published, 0);
    EXPECT_EQ(controller.propertyErrorCount(), 1U);
}

TEST(PropertyController, HidingAPropertyDoesNotLinkItsSubContainerAgain) {
    bool shown = true;
    TestContainer part;
    TestContainer elsewhere;
    TestController controller([&](Context& context) {
        context.configure(kA, {.visibility = [&] { return shown; }},
                          {.subPropertyContainer = &part});
    });
    EXPECT_TRUE(controller.propertyVisible(kA));
    part.setEnclosingPropertyContainer(elsewhere, {});
    shown = false;
    controller.publishVisibility(kA);
    EXPECT_EQ(part.enclosingPropertyContainer(), &elsewhere);
}

TEST(PropertyController, DoesNotCountAnErrorOfAnEntryThatIsGone) {
    TestController controller;
    auto subscription = controller.subscribe(kA, {});
    controller.onConfigure = [&](Context& context) {
        context.configure(kA, {.state = [] { return failure(); }});
        controller.publish(kA, Action::Update, 0);
        context.configure(kA, {});
        subscription.reset();
    };
    EXPECT_EQ(controller.propertyErrorCount(), 0U);
    EXPECT_EQ(entries(controller), 0U);
}

TEST(PropertyController, RaisesNothingWithoutAnEnclosingContainer) {
    Trace trace;
    TestController controller(
        [](Context& context) { context.configure(kA, {.raisedProperties = {kB, kC}}); });
    const auto b = controller.subscribe(kB, all(trace, "b"));
    EXPECT_TRUE(controller.propertyVisible(kA));
    controller.publishValue(kA, Action::Insert, 1);
    EXPECT_EQ(trace.take(), "");
}

TEST(PropertyController, RaisesItsNotificationsInTheEnclosingControllerInListOrder) {
    Trace trace;
    TestController owner;
    TestController item(
        [](Context& context) { context.configure(kA, {.raisedProperties = {kC, kB, kD}}); });
    item.setEnclosingPropertyContainer(owner, {});
    const auto a = item.subscribe(kA, all(trace, "item"));
    const auto b = owner.subscribe(kB, all(trace, "b"));
    const auto c = owner.subscribe(kC, all(trace, "c"));
    item.publishValue(kA, Action::Insert, 6);
    EXPECT_EQ(trace.take(), "item.value1@6 c.value0@0 b.value0@0");
    item.publish(kA, Action::Move, 6);
    EXPECT_EQ(trace.take(), "item.value3@6 c.value0@0 b.value0@0");
}

TEST(PropertyController, RaisesFurtherUpWhereTheEnclosingPropertyRaisesToo) {
    Trace trace;
    TestController root;
    TestController list(
        [](Context& context) { context.configure(kB, {.raisedProperties = {kC}}); });
    TestController row([](Context& context) { context.configure(kA, {.raisedProperties = {kB}}); });
    row.setEnclosingPropertyContainer(list, {});
    list.setEnclosingPropertyContainer(root, {});
    const auto c = root.subscribe(kC, all(trace, "root"));
    row.publishValue(kA, Action::Insert, 6);
    EXPECT_EQ(trace.take(), "root.value0@0");
}

TEST(PropertyController, NotifiesInTheDocumentedOrder) {
    Trace trace;
    bool good = true;
    bool shown = false;
    TestContainer part;
    part.local = 1;
    TestController owner;
    TestController controller([&](Context& context) {
        context.configure(kA, {.state = [&] { return successIf(good); }, .raisedProperties = {kD}});
        context.configure(kB, {.visibility = [&] { return shown; }, .visibilityDependencies = {kA}},
                          {.subPropertyContainer = &part});
    });
    controller.setEnclosingPropertyContainer(owner, {});
    const auto first = controller.subscribe(kA, all(trace, "first"));
    const auto second = controller.subscribe(kA, all(trace, "second"));
    const auto dependent = controller.subscribe(kB, all(trace, "dependent"));
    const auto counted = controller.subscribeToPropertyErrorCount(
        [&] { trace.add("count=" + std::to_string(controller.propertyErrorCount())); });
    const auto raised = owner.subscribe(kD, all(trace, "raised"));
    good = false;
    shown = true;
    controller.publish(kA, Action::Update, 0);
    EXPECT_EQ(trace.take(), "first.value0@0 first.state second.value0@0 second.state "
                            "dependent.visibility count=1 count=2 raised.value0@0");
}

TEST(PropertyController, VisitsSubContainersAndReferencesOfVisiblePropertiesInTableOrder) {
    Reference first;
    Reference second;
    Reference hidden;
    TestController controller([&](Context& context) {
        context.configure(kC, {}, {.crossReferenceController = &first});
        context.configure(kA, {.visibility = [] { return false; }},
                          {.crossReferenceController = &hidden});
        context.configure(kB, {}, {.crossReferenceController = &second});
    });
    std::vector<CrossReferenceController*> visited;
    const auto visit = [&](CrossReferenceController& reference) { visited.push_back(&reference); };
    controller.forEachCrossReference(visit, {});
    EXPECT_THAT(visited, ElementsAre(&first, &second));
    visited.clear();
    controller.forEachCrossReference(visit, {.includeInvisible = true});
    EXPECT_THAT(visited, ElementsAre(&first, &hidden, &second));
}

// Copying, moving, destroying.

TEST(PropertyController, ACopyIsUnconfiguredAndHasNoEntries) {
    Trace trace;
    TestController controller(
        [](Context& context) { context.configure(kA, {.state = [] { return failure(); }}); });
    const auto a = controller.subscribe(kA, all(trace, "a"));
    EXPECT_EQ(controller.propertyErrorCount(), 1U);
    (void)trace.take();

    TestController copy = controller;
    TestController moved = std::move(controller);
    for (TestController* fresh : {&copy, &moved}) {
        PropertyController& base = *fresh;
        EXPECT_FALSE(base.*reveal(ControllerConfigured{}));
        EXPECT_EQ(entries(*fresh), 0U);
        EXPECT_EQ(base.*reveal(ControllerErrorCount{}), 0U);
        fresh->publishValue(kA, Action::Update, 0);
        EXPECT_EQ(trace.take(), "");
    }
    EXPECT_EQ(copy.propertyErrorCount(), 1U);
    controller.publishValue(kA, Action::Update, 0);
    EXPECT_EQ(trace.take(), "a.value0@0");
}

TEST(PropertyController, AssigningLeavesTheTargetUnchanged) {
    Trace trace;
    class Plain : public PropertyController {};
    Plain target;
    Plain source;
    const auto a = target.subscribe(kA, all(trace, "target"));
    const auto b = source.subscribe(kA, all(trace, "source"));
    EXPECT_EQ(&(target = source), &target);
    target.publishValue(kA, Action::Update, 0);
    EXPECT_EQ(trace.take(), "target.value0@0");
    target = std::move(source);
    target.publishValue(kA, Action::Update, 0);
    source.publishValue(kA, Action::Update, 0);
    EXPECT_EQ(trace.take(), "target.value0@0 source.value0@0");
}

TEST(PropertyController, DestroyingItCallsNoCallbackAndNotifiesNoContainer) {
    Trace trace;
    TestContainer owner("owner", trace);
    const auto witness = std::make_shared<int>(0);
    {
        TestController controller([&](Context& context) {
            context.configure(kA, {.state = [witness] { return failure(); },
                                   .visibility = [witness] { return true; },
                                   .raisedProperties = {kB}});
        });
        controller.setEnclosingPropertyContainer(owner, {});
        EXPECT_EQ(owner.propertyErrorCount(), 1U);
        (void)trace.take();
        EXPECT_EQ(witness.use_count(), 3);
    }
    EXPECT_EQ(witness.use_count(), 1);
    EXPECT_EQ(trace.take(), "");
    EXPECT_EQ(owner.propertyErrorCount(), 1U);
    EXPECT_TRUE(owner.raised.empty());
}

} // namespace
} // namespace corvane::workbench::bindings::test
