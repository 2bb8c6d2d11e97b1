#include <corvane/workbench/bindings/PropertyData.hpp>

#include "TestContainer.hpp"
#include "TestController.hpp"
#include "Trace.hpp"
#include <corvane/workbench/bindings/PropertyKey.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>

namespace corvane::workbench::bindings::test {
namespace {

using Data = PropertyController::PropertyData;
using Flags = std::tuple<bool, bool, bool, bool>;

const PropertyKey kA;
const PropertyKey kB;

/// State changed, visibility changed, sub-property visibility changed, error count may have
/// changed.
Flags flags(const PropertyController::PropertyChanges& changes) {
    return {changes.stateChanged, changes.visibilityChanged, changes.subPropertyVisibilityChanged,
            changes.errorCountMayHaveChanged};
}

constexpr Flags kNone{false, false, false, false};

/// A property whose state and visibility a test sets, with one subscriber.
struct Subject {
    Subject() {
        data.subscribe({trace.adder("value"), trace.adder("state"), trace.adder("shown")});
    }

    void configure(PropertyContainer* container = nullptr) {
        data.configure(
            {.state = [this] { return successIf(good); }, .visibility = [this] { return shown; }},
            {.subPropertyContainer = container});
    }

    bool good = true;
    bool shown = true;
    Trace trace;
    Data data;
};

TEST(PropertyData, PublishingReportsAChangedStateWithWhatItMeansForTheErrorCount) {
    Subject subject;
    subject.configure();
    EXPECT_EQ(flags(subject.data.publish(Action::Update, 0)), kNone);
    EXPECT_EQ(subject.trace.take(), "value");
    subject.good = false;
    EXPECT_EQ(flags(subject.data.publish(Action::Update, 0)), Flags(true, false, false, true));
    EXPECT_EQ(subject.trace.take(), "value state");
}

TEST(PropertyData, PublishingTheValueReportsNothing) {
    Subject subject;
    subject.configure();
    subject.good = false;
    EXPECT_EQ(flags(subject.data.publishValue(Action::Update, 0)), kNone);
    EXPECT_EQ(subject.trace.take(), "value");
    EXPECT_TRUE(subject.data.state());
}

TEST(PropertyData, PublishingTheStateReportsWhetherItChanged) {
    Subject subject;
    subject.configure();
    EXPECT_EQ(flags(subject.data.publishState()), kNone);
    subject.good = false;
    EXPECT_EQ(flags(subject.data.publishState()), Flags(true, false, false, true));
    EXPECT_EQ(subject.trace.take(), "state");
}

TEST(PropertyData, PublishingTheVisibilityReportsWhatChangedWithIt) {
    TestContainer part;
    Subject subject;
    subject.configure();
    EXPECT_EQ(flags(subject.data.publishVisibility()), kNone);
    subject.shown = false;
    EXPECT_EQ(flags(subject.data.publishVisibility()), Flags(false, true, false, false));
    subject.configure(&part);
    subject.shown = true;
    subject.good = false;
    EXPECT_EQ(flags(subject.data.publishVisibility()), Flags(true, true, true, true));
    EXPECT_EQ(subject.trace.take(), "shown state shown");
}

TEST(PropertyData, PublishingADependencyReportsOnlyWhatItsOwnerActsUpon) {
    TestContainer part;
    Subject subject;
    subject.configure(&part);
    const PropertyController::Dependency value{.property = kA, .updatesValue = true};
    const PropertyController::Dependency state{.property = kA, .updatesState = true};
    const PropertyController::Dependency visibility{.property = kA, .updatesVisibility = true};
    EXPECT_EQ(flags(subject.data.publishDependency(value)), kNone);
    EXPECT_EQ(subject.trace.take(), "value");
    EXPECT_EQ(flags(subject.data.publishDependency(state)), kNone);
    EXPECT_EQ(flags(subject.data.publishDependency(visibility)), kNone);
    EXPECT_EQ(subject.trace.take(), "");
    subject.good = false;
    EXPECT_EQ(flags(subject.data.publishDependency(state)), Flags(false, false, false, true));
    EXPECT_EQ(subject.trace.take(), "state");
    subject.shown = false;
    EXPECT_EQ(flags(subject.data.publishDependency(visibility)), Flags(false, false, true, true));
    EXPECT_EQ(subject.trace.take(), "state shown");
}

TEST(PropertyData, MergesDependentsOfTheSameProperty) {
    Data data;
    data.addDependentProperty({.property = kA, .updatesValue = true});
    data.addDependentProperty({.property = kB, .updatesState = true});
    data.addDependentProperty({.property = kA, .updatesVisibility = true});
    ASSERT_EQ(data.dependentProperties().size(), 2U);
    const PropertyController::Dependency& first = data.dependentProperties().front();
    EXPECT_EQ(first.property, kA.id());
    EXPECT_TRUE(first.updatesValue);
    EXPECT_FALSE(first.updatesState);
    EXPECT_TRUE(first.updatesVisibility);
}

TEST(PropertyData, ACopyHasEverythingAndAMovedFromOneNoSubscriptions) {
    Subject subject;
    subject.configure();
    subject.data.addDependentProperty({.property = kA, .updatesValue = true});
    subject.good = false;
    static_cast<void>(subject.data.publishState());
    static_cast<void>(subject.trace.take());

    Data copy = subject.data;
    EXPECT_FALSE(copy.state());
    EXPECT_EQ(copy.dependentProperties().size(), 1U);
    static_cast<void>(copy.publishValue(Action::Update, 0));
    static_cast<void>(subject.data.publishValue(Action::Update, 0));
    EXPECT_EQ(subject.trace.take(), "value value");

    Data moved = std::move(copy);
    static_cast<void>(copy.publishValue(Action::Update, 0)); // NOLINT: the source is the point
    EXPECT_EQ(subject.trace.take(), "");
    static_cast<void>(moved.publishValue(Action::Update, 0));
    EXPECT_EQ(subject.trace.take(), "value");
}

TEST(PropertyData, IsEmptyUntilSomethingIsConfiguredDependsOnItOrSubscribes) {
    EXPECT_TRUE(Data().empty());
    Data subscribed;
    const std::size_t id = subscribed.subscribe({});
    EXPECT_FALSE(subscribed.empty());
    subscribed.unsubscribe(id);
    EXPECT_TRUE(subscribed.empty());
    Data dependedOn;
    dependedOn.addDependentProperty({.property = kA, .updatesValue = true});
    EXPECT_FALSE(dependedOn.empty());
    Data raising;
    raising.configure({.raisedProperties = {kB}}, {});
    EXPECT_FALSE(raising.empty());
    Data withState;
    withState.configure({.state = [] { return success(); }}, {});
    EXPECT_FALSE(withState.empty());
    Data withVisibility;
    withVisibility.configure({.visibility = [] { return true; }}, {});
    EXPECT_FALSE(withVisibility.empty());
    TestContainer part;
    Data holding;
    holding.configure({}, {.subPropertyContainer = &part});
    EXPECT_FALSE(holding.empty());
}

} // namespace
} // namespace corvane::workbench::bindings::test
