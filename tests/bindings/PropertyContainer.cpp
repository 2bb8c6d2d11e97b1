#include <corvane/workbench/bindings/PropertyContainer.hpp>

#include "PrivateMember.hpp"
#include "TestContainer.hpp"
#include "Trace.hpp"
#include <corvane/workbench/bindings/CrossReferenceController.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <deque>
#include <functional>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace corvane::workbench::bindings::test {

struct EnclosingField {
    friend constexpr auto reveal(EnclosingField);
};
struct CountField {
    friend constexpr auto reveal(CountField);
};
struct SubscriptionsField {
    friend constexpr auto reveal(SubscriptionsField);
};
struct SetCount {
    friend constexpr auto reveal(SetCount);
};
struct AdjustCount {
    friend constexpr auto reveal(AdjustCount);
};
struct UpdateCount {
    friend constexpr auto reveal(UpdateCount);
};
struct ErrorCountChanged {
    friend constexpr auto reveal(ErrorCountChanged);
};
struct ForEachSub {
    friend constexpr auto reveal(ForEachSub);
};
struct ForEachReference {
    friend constexpr auto reveal(ForEachReference);
};
struct LocalCount {
    friend constexpr auto reveal(LocalCount);
};
struct NotificationRaised {
    friend constexpr auto reveal(NotificationRaised);
};
template struct PrivateMember<EnclosingField, &PropertyContainer::enclosingPropertyContainer_>;
template struct PrivateMember<CountField, &PropertyContainer::subContainerPropertyErrorCount_>;
template struct PrivateMember<SubscriptionsField, &PropertyContainer::errorCountSubscriptions_>;
template struct PrivateMember<SetCount, &PropertyContainer::setSubContainerPropertyErrorCount>;
template struct PrivateMember<AdjustCount,
                              &PropertyContainer::adjustSubContainerPropertyErrorCount>;
template struct PrivateMember<UpdateCount,
                              &PropertyContainer::updateSubContainerPropertyErrorCount>;
template struct PrivateMember<ErrorCountChanged, &PropertyContainer::propertyErrorCountChanged>;
template struct PrivateMember<ForEachSub, &PropertyContainer::forEachSubPropertyContainer>;
template struct PrivateMember<ForEachReference, &PropertyContainer::forEachLocalCrossReference>;
template struct PrivateMember<LocalCount, &PropertyContainer::localPropertyErrorCount>;
template struct PrivateMember<NotificationRaised, &PropertyContainer::propertyNotificationRaised>;

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Options = PropertyContainer::SetEnclosingPropertyContainerOptions;

static_assert(std::is_abstract_v<PropertyContainer>);
static_assert(std::has_virtual_destructor_v<PropertyContainer>);
static_assert(std::is_aggregate_v<Options>);
static_assert(!Options{}.reservedFlag && !Options{}.keepNewContainerCount &&
              !Options{}.keepOldContainerCount);
static_assert(
    !PropertyContainer::SubPropertyContainerListChangedOptions{}.updateEnclosingContainers);
static_assert(!PropertyContainer::ForEachCrossReferenceOptions{}.recursive &&
              !PropertyContainer::ForEachCrossReferenceOptions{}.includeInvisible);

const PropertyKey kList;

std::uint64_t subCount(const PropertyContainer& container) {
    return container.*reveal(CountField{});
}

void setCount(PropertyContainer& container, std::uint64_t count) {
    (container.*reveal(SetCount{}))(count);
}

auto publishing(TestContainer& container) {
    return container.subscribeToPropertyErrorCount([&container] {
        container.trace->add(container.name + "=" + std::to_string(container.propertyErrorCount()));
    });
}

/// A root, a middle and a leaf container, each listening to its own error count.
struct Chain {
    Chain() {
        root.parts = {{&middle}};
        middle.parts = {{&leaf}};
        leaf.setEnclosingPropertyContainer(middle, {});
        middle.setEnclosingPropertyContainer(root, {});
        (void)trace.take();
    }

    Trace trace;
    TestContainer root{"root", trace};
    TestContainer middle{"middle", trace};
    TestContainer leaf{"leaf", trace};
    std::array<PropertyContainer::ErrorCountSubscription, 3> subscriptions{
        publishing(root), publishing(middle), publishing(leaf)};
};

// Fixed orders.

TEST(PropertyContainer, KeepsItsFieldsInTheFixedOrder) {
    const TestContainer container;
    const PropertyContainer& base = container;
    EXPECT_EQ(offsetOf(base, reveal(EnclosingField{})), 8);
    EXPECT_EQ(offsetOf(base, reveal(CountField{})), 16);
    EXPECT_EQ(offsetOf(base, reveal(SubscriptionsField{})), 24);
}

#if !defined(_MSC_VER)
TEST(PropertyContainer, KeepsItsVirtualOperationsInTheFixedOrder) {
    EXPECT_EQ(virtualSlot(reveal(ErrorCountChanged{})), 2U);
    EXPECT_EQ(virtualSlot(reveal(ForEachSub{})), 3U);
    EXPECT_EQ(virtualSlot(reveal(ForEachReference{})), 4U);
    EXPECT_EQ(virtualSlot(reveal(LocalCount{})), 5U);
    EXPECT_EQ(virtualSlot(reveal(NotificationRaised{})), 6U);
}
#endif

// Identity.

TEST(PropertyContainer, IsARootWithoutErrorsAtFirst) {
    const TestContainer container;
    EXPECT_EQ(container.enclosingPropertyContainer(), nullptr);
    EXPECT_EQ(container.propertyErrorCount(), 0U);
}

TEST(PropertyContainer, ACopyStartsFreshAndLeavesTheSourceUntouched) {
    Chain chain;
    chain.leaf.setLocal(2);
    (void)chain.trace.take();
    TestContainer copy = chain.middle;
    TestContainer moved = std::move(chain.middle);
    chain.middle.name = "middle"; // what the test itself added does move
    for (TestContainer* fresh : {&copy, &moved}) {
        EXPECT_EQ(fresh->enclosingPropertyContainer(), nullptr);
        EXPECT_EQ(subCount(*fresh), 0U);
        setCount(*fresh, 7);
    }
    EXPECT_EQ(chain.trace.take(), "middle.changed=7 middle.changed=7");
    EXPECT_EQ(chain.middle.enclosingPropertyContainer(), &chain.root);
    EXPECT_EQ(subCount(chain.middle), 2U);
    setCount(chain.middle, 3);
    EXPECT_EQ(chain.trace.take(), "middle.changed=3 middle=3 root.changed=3 root=3");
}

TEST(PropertyContainer, AssigningLeavesBothAsTheyWere) {
    class Plain : public TestContainer {
    public:
        using TestContainer::TestContainer;
        Plain& operator=(const Plain& other) {
            PropertyContainer::operator=(other);
            return *this;
        }
        Plain& operator=(Plain&& other) {
            PropertyContainer::operator=(std::move(other));
            return *this;
        }
    };
    TestContainer owner;
    Plain target;
    Plain source;
    target.setEnclosingPropertyContainer(owner, {});
    setCount(target, 1);
    setCount(source, 5);
    EXPECT_EQ(&(target = source), &target);
    target = std::move(source);
    EXPECT_EQ(target.enclosingPropertyContainer(), &owner);
    EXPECT_EQ(subCount(target), 1U);
    EXPECT_EQ(source.enclosingPropertyContainer(), nullptr);
    EXPECT_EQ(subCount(source), 5U);
}

TEST(PropertyContainer, DestroyingItNeitherUnlinksNorCorrectsNorNotifies) {
    Trace trace;
    TestContainer owner("owner", trace);
    {
        TestContainer part("part", trace);
        part.local = 2;
        part.setEnclosingPropertyContainer(owner, {});
        (void)trace.take();
    }
    EXPECT_EQ(trace.take(), "");
    EXPECT_EQ(owner.propertyErrorCount(), 2U);
}

// Counts that travel upward.

TEST(PropertyContainer, SettingACountToTheValueItHasNotifiesNobody) {
    Chain chain;
    setCount(chain.leaf, 2);
    (void)chain.trace.take();
    setCount(chain.leaf, 2);
    EXPECT_EQ(chain.trace.take(), "");
}

TEST(PropertyContainer, AChangedCountIsAdjustedInEveryAncestorChildBeforeParent) {
    Chain chain;
    setCount(chain.leaf, 2);
    EXPECT_EQ(chain.trace.take(), "leaf.changed=2 leaf=2 middle.changed=2 middle=2 "
                                  "root.changed=2 root=2");
    setCount(chain.root, 10);
    (void)chain.trace.take();
    setCount(chain.leaf, 1);
    EXPECT_EQ(chain.trace.take(), "leaf.changed=1 leaf=1 middle.changed=1 middle=1 "
                                  "root.changed=9 root=9");
}

TEST(PropertyContainer, AChangeThatCancelsOutInAnAncestorStopsThere) {
    Chain chain;
    // The middle container hears that a part with one error is gone, within the same change.
    TestContainer part;
    part.local = 1;
    chain.middle.subPropertyContainerAdded(part);
    (void)chain.trace.take();
    chain.leaf.onErrorCountChanged = [&] {
        const std::uint64_t before = subCount(chain.middle);
        // What reaches the middle is one more, so that it ends where it started.
        chain.middle.*reveal(CountField{}) = before;
    };
    chain.leaf.local = 0;
    setCount(chain.leaf, 0);
    EXPECT_EQ(chain.trace.take(), "");
    (chain.leaf.*reveal(AdjustCount{}))(0);
    EXPECT_EQ(chain.trace.take(), "");
}

TEST(PropertyContainer, AdjustsByASignedDifference) {
    Chain chain;
    (chain.leaf.*reveal(AdjustCount{}))(3);
    (chain.leaf.*reveal(AdjustCount{}))(-2);
    EXPECT_EQ(subCount(chain.leaf), 1U);
    EXPECT_EQ(subCount(chain.root), 1U);
}

TEST(PropertyContainer, CountsWrapAround) {
    Chain chain;
    (chain.leaf.*reveal(AdjustCount{}))(-1);
    EXPECT_EQ(subCount(chain.leaf), 0xffff'ffff'ffff'ffffU);
    EXPECT_EQ(chain.root.propertyErrorCount(), 0xffff'ffff'ffff'ffffU);
    (chain.leaf.*reveal(AdjustCount{}))(2);
    EXPECT_EQ(subCount(chain.leaf), 1U);
    EXPECT_EQ(chain.root.propertyErrorCount(), 1U);
}

TEST(PropertyContainer, ALocalChangeIsRecountedByTheParentAndAdjustedAboveInnermostFirst) {
    Chain chain;
    chain.leaf.setLocal(2);
    EXPECT_EQ(chain.trace.take(), "leaf.changed=2 leaf=2 middle.changed=2 middle=2 "
                                  "root.changed=2 root=2");
}

TEST(PropertyContainer, TheTotalIsTheLocalCountPlusThatOfTheSubContainers) {
    Chain chain;
    chain.root.local = 1;
    chain.middle.local = 2;
    chain.leaf.setLocal(4);
    EXPECT_EQ(chain.leaf.propertyErrorCount(), 4U);
    EXPECT_EQ(chain.middle.propertyErrorCount(), 6U);
    EXPECT_EQ(chain.root.propertyErrorCount(), 5U);
    chain.middle.localPropertyErrorCountChanged();
    EXPECT_EQ(chain.root.propertyErrorCount(), 7U);
}

TEST(PropertyContainer, ALocalCountThatChangesTheStoredOneIsAskedFirst) {
    TestContainer container;
    container.local = 1;
    container.onLocalQuery = [&] { container.*reveal(CountField{}) = 10; };
    EXPECT_EQ(container.propertyErrorCount(), 11U);
}

TEST(PropertyContainer, ARecountSumsTheVisibleSubContainersOnly) {
    Trace trace;
    TestContainer owner("owner", trace);
    TestContainer shown;
    TestContainer hidden;
    shown.local = 1;
    setCount(shown, 2);
    hidden.local = 8;
    owner.parts = {{&shown, true}, {&hidden, false}};
    (owner.*reveal(UpdateCount{}))();
    EXPECT_EQ(owner.propertyErrorCount(), 3U);
    EXPECT_EQ(trace.take(), "owner.changed=3");
    (owner.*reveal(UpdateCount{}))();
    EXPECT_EQ(trace.take(), "");
}

TEST(PropertyContainer, ASubContainerOfAnInvisiblePropertyIsAddedAllTheSame) {
    TestContainer owner;
    TestContainer hidden;
    hidden.local = 8;
    owner.parts = {{&hidden, false}};
    owner.subPropertyContainerListChanged({});
    EXPECT_EQ(owner.propertyErrorCount(), 0U);
    owner.subPropertyContainerAdded(hidden);
    EXPECT_EQ(owner.propertyErrorCount(), 8U);
    owner.subPropertyContainerRemoved(hidden);
    EXPECT_EQ(owner.propertyErrorCount(), 0U);
}

TEST(PropertyContainer, AddingAndRemovingDoNotTouchTheLink) {
    TestContainer owner;
    TestContainer part;
    part.local = 1;
    setCount(part, 2);
    owner.subPropertyContainerAdded(part);
    EXPECT_EQ(owner.propertyErrorCount(), 3U);
    EXPECT_EQ(part.enclosingPropertyContainer(), nullptr);
    part.setEnclosingPropertyContainer(owner, {.keepNewContainerCount = true});
    owner.subPropertyContainerRemoved(part);
    EXPECT_EQ(owner.propertyErrorCount(), 0U);
    EXPECT_EQ(part.enclosingPropertyContainer(), &owner);
}

// Linking.

TEST(PropertyContainer, LinkingRaisesTheCountOfTheNewContainerAndAllAboveIt) {
    Chain chain;
    TestContainer part;
    part.local = 1;
    setCount(part, 4);
    part.setEnclosingPropertyContainer(chain.middle, {});
    EXPECT_EQ(part.enclosingPropertyContainer(), &chain.middle);
    EXPECT_EQ(chain.trace.take(), "middle.changed=5 middle=5 root.changed=5 root=5");
}

TEST(PropertyContainer, LinkingElsewhereCorrectsTheOldContainerBeforeTheNewOne) {
    Trace trace;
    TestContainer oldOwner("old", trace);
    TestContainer newOwner("new", trace);
    TestContainer part;
    part.local = 3;
    part.setEnclosingPropertyContainer(oldOwner, {});
    (void)trace.take();
    part.setEnclosingPropertyContainer(newOwner, {});
    EXPECT_EQ(trace.take(), "old.changed=0 new.changed=3");
}

TEST(PropertyContainer, LinkingKeepsTheCountsThatItIsToldToKeep) {
    TestContainer oldOwner;
    TestContainer newOwner;
    TestContainer part;
    part.local = 3;
    part.setEnclosingPropertyContainer(oldOwner, {});
    part.setEnclosingPropertyContainer(newOwner, {.keepNewContainerCount = true});
    EXPECT_EQ(oldOwner.propertyErrorCount(), 0U);
    EXPECT_EQ(newOwner.propertyErrorCount(), 0U);
    part.setEnclosingPropertyContainer(oldOwner, {.keepOldContainerCount = true});
    EXPECT_EQ(oldOwner.propertyErrorCount(), 3U);
    EXPECT_EQ(newOwner.propertyErrorCount(), 0U);
    part.setEnclosingPropertyContainer(newOwner, {.reservedFlag = true});
    EXPECT_EQ(oldOwner.propertyErrorCount(), 0U);
    EXPECT_EQ(newOwner.propertyErrorCount(), 3U);
}

TEST(PropertyContainer, LinkingAsksForTheLocalCountOnceBeforeItIsUsed) {
    TestContainer owner;
    TestContainer part;
    part.setEnclosingPropertyContainer(owner, {.keepNewContainerCount = true});
    EXPECT_EQ(part.localQueries, 1);
}

TEST(PropertyContainer, LinkingToTheContainerItIsLinkedToDoesNothingAtAll) {
    Trace trace;
    TestContainer owner("owner", trace);
    TestContainer part;
    part.local = 3;
    part.setEnclosingPropertyContainer(owner, {});
    (void)trace.take();
    part.localQueries = 0;
    part.setEnclosingPropertyContainer(owner, {});
    EXPECT_EQ(trace.take(), "");
    EXPECT_EQ(part.localQueries, 0);
    EXPECT_EQ(owner.propertyErrorCount(), 3U);
}

TEST(PropertyContainer, LinkingAContainerThatFailsToBeCountedLeavesEverythingAsItWas) {
    Trace trace;
    TestContainer former("former", trace);
    TestContainer owner("owner", trace);
    TestContainer part;
    part.local = 3;
    part.setEnclosingPropertyContainer(former, {});
    (void)trace.take();
    part.onLocalQuery = [] { throw std::runtime_error("part"); };
    EXPECT_THROW(part.setEnclosingPropertyContainer(owner, {}), std::runtime_error);
    EXPECT_EQ(trace.take(), "");
    EXPECT_EQ(part.enclosingPropertyContainer(), &former);
    EXPECT_EQ(former.propertyErrorCount(), 3U);
    EXPECT_EQ(owner.propertyErrorCount(), 0U);
    part.onLocalQuery = nullptr;
    part.setEnclosingPropertyContainer(owner, {});
    EXPECT_EQ(trace.take(), "former.changed=0 owner.changed=3");
}

TEST(PropertyContainer, UnlinkingTakesTheCountOutAfterTheLinkIsGone) {
    Trace trace;
    TestContainer owner("owner", trace);
    TestContainer part;
    part.local = 3;
    part.setEnclosingPropertyContainer(owner, {});
    (void)trace.take();
    owner.onErrorCountChanged = [&] {
        trace.add(part.enclosingPropertyContainer() == nullptr ? "unlinked" : "linked");
    };
    part.resetEnclosingPropertyContainer({.keepNewContainerCount = true});
    EXPECT_EQ(trace.take(), "owner.changed=0 unlinked");
    EXPECT_EQ(part.enclosingPropertyContainer(), nullptr);
    part.localQueries = 0;
    part.resetEnclosingPropertyContainer({});
    EXPECT_EQ(part.localQueries, 0);
}

TEST(PropertyContainer, UnlinkingKeepsTheCountThatItIsToldToKeep) {
    TestContainer owner;
    TestContainer part;
    part.local = 3;
    part.setEnclosingPropertyContainer(owner, {});
    part.localQueries = 0;
    part.resetEnclosingPropertyContainer({.keepOldContainerCount = true});
    EXPECT_EQ(owner.propertyErrorCount(), 3U);
    EXPECT_EQ(part.enclosingPropertyContainer(), nullptr);
    EXPECT_EQ(part.localQueries, 0);
}

TEST(PropertyContainer, UnlinkingOneWhoseFirstCountThrowsTakesItsCountOutAllTheSame) {
    TestContainer owner;
    TestContainer part;
    part.local = 3;
    part.setEnclosingPropertyContainer(owner, {});
    bool thrown = false;
    part.onLocalQuery = [&] {
        if (!std::exchange(thrown, true)) {
            throw std::runtime_error("the first count");
        }
    };
    EXPECT_THROW(part.resetEnclosingPropertyContainer({}), std::runtime_error);
    EXPECT_EQ(part.enclosingPropertyContainer(), nullptr);
    EXPECT_EQ(owner.propertyErrorCount(), 0U);
}

// Exceptions of those who hear of a count.

struct FailingPair {
    FailingPair() {
        part.local = 2;
        setCount(first, 1);
        setCount(second, 4);
    }
    /// From now on whoever hears of a change of the container's count fails.
    static void fail(TestContainer& container) {
        container.onErrorCountChanged = [] { throw std::runtime_error("heard"); };
    }

    TestContainer part;
    TestContainer first;
    TestContainer second;
};

TEST(PropertyContainer, LinkingPassesOnTheExceptionOfEitherOwnersSubscriber) {
    for (const bool formerFails : {false, true}) {
        FailingPair pair;
        pair.part.setEnclosingPropertyContainer(pair.first, {});
        FailingPair::fail(formerFails ? pair.first : pair.second);
        EXPECT_THROW(pair.part.setEnclosingPropertyContainer(pair.second, {}), std::runtime_error);
        EXPECT_EQ(pair.part.enclosingPropertyContainer(), &pair.second);
        EXPECT_EQ(subCount(pair.first), 1U);
        EXPECT_EQ(subCount(pair.second), 6U);
    }
}

TEST(PropertyContainer, UnlinkingPassesOnTheExceptionOfASubscriber) {
    FailingPair pair;
    pair.part.setEnclosingPropertyContainer(pair.first, {});
    FailingPair::fail(pair.first);
    EXPECT_THROW(pair.part.resetEnclosingPropertyContainer({}), std::runtime_error);
    EXPECT_EQ(pair.part.enclosingPropertyContainer(), nullptr);
    EXPECT_EQ(subCount(pair.first), 1U);
}

TEST(PropertyContainer, MovingAListPassesOnTheExceptionOfASubscriber) {
    for (const bool sourceFails : {false, true}) {
        FailingPair pair;
        FailingPair::fail(sourceFails ? pair.second : pair.first);
        EXPECT_THROW(pair.first.subPropertyContainerListMoved(pair.second, {}), std::runtime_error);
        EXPECT_EQ(subCount(pair.first), 4U);
        EXPECT_EQ(subCount(pair.second), 0U);
    }
}

TEST(PropertyContainer, SwappingListsPassesOnTheExceptionOfASubscriber) {
    for (const bool otherFails : {false, true}) {
        FailingPair pair;
        FailingPair::fail(otherFails ? pair.second : pair.first);
        EXPECT_THROW(pair.first.subPropertyContainerListSwapped(pair.second, {}),
                     std::runtime_error);
        EXPECT_EQ(subCount(pair.first), 4U);
        EXPECT_EQ(subCount(pair.second), 1U);
    }
}

#if GTEST_HAS_DEATH_TEST && !defined(NDEBUG) && !defined(_WIN32)
TEST(PropertyContainerDeathTest, LinkingAContainerBelowItselfIsAProgrammingError) {
    Chain chain;
    const std::string text = "a container cannot be linked below itself";
    EXPECT_DEATH(chain.root.setEnclosingPropertyContainer(chain.leaf, {}), text);
    EXPECT_DEATH(chain.root.setEnclosingPropertyContainer(chain.root, {}), text);
    chain.leaf.parts = {{&chain.root}};
    EXPECT_DEATH(chain.leaf.subPropertyContainerListChanged({.updateEnclosingContainers = true}),
                 text);
}
#endif

// Lists.

TEST(PropertyContainer, AChangedListIsRecountedWithoutRelinkingUnlessAskedTo) {
    TestContainer owner;
    TestContainer part;
    part.local = 2;
    owner.parts = {{&part}};
    owner.subPropertyContainerListChanged({});
    EXPECT_EQ(owner.propertyErrorCount(), 2U);
    EXPECT_EQ(part.enclosingPropertyContainer(), nullptr);
}

TEST(PropertyContainer, AChangedListRelinksVisibleAndInvisibleSubContainers) {
    TestContainer owner;
    TestContainer shown;
    TestContainer hidden;
    shown.local = 2;
    hidden.local = 4;
    owner.parts = {{&shown, true}, {&hidden, false}};
    owner.subPropertyContainerListChanged({.updateEnclosingContainers = true});
    EXPECT_EQ(owner.propertyErrorCount(), 2U);
    EXPECT_EQ(shown.enclosingPropertyContainer(), &owner);
    EXPECT_EQ(hidden.enclosingPropertyContainer(), &owner);
}

TEST(PropertyContainer, AChangedListRecountsEachFormerContainerOnceAndThenItself) {
    Trace trace;
    TestContainer owner("owner", trace);
    TestContainer former("former", trace);
    std::array<TestContainer, 3> parts;
    for (TestContainer& part : parts) {
        part.local = 1;
        former.parts.push_back({&part});
    }
    former.subPropertyContainerListChanged({.updateEnclosingContainers = true});
    (void)trace.take();
    owner.parts = std::exchange(former.parts, {});
    int recounts = 0;
    former.onLocalQuery = [&] { ++recounts; };
    owner.subPropertyContainerListChanged({.updateEnclosingContainers = true});
    EXPECT_EQ(trace.take(), "former.changed=0 owner.changed=3");
    EXPECT_EQ(former.propertyErrorCount(), 0U);
    EXPECT_EQ(owner.propertyErrorCount(), 3U);
}

TEST(PropertyContainer, ACopiedListTakesTheCountAsItStands) {
    Trace trace;
    TestContainer source("source", trace);
    TestContainer target("target", trace);
    TestContainer part;
    part.local = 100;
    target.parts = {{&part, false}};
    setCount(source, 3);
    (void)trace.take();
    target.subPropertyContainerListCopied(source, {});
    EXPECT_EQ(part.enclosingPropertyContainer(), nullptr);
    EXPECT_EQ(trace.take(), "target.changed=3");
    target.subPropertyContainerListCopied(source, {.updateEnclosingContainers = true});
    EXPECT_EQ(part.enclosingPropertyContainer(), &target);
    EXPECT_EQ(trace.take(), "");
    EXPECT_EQ(subCount(source), 3U);
    EXPECT_EQ(subCount(target), 3U);
}

TEST(PropertyContainer, AMovedListEmptiesTheOtherCountFirst) {
    Trace trace;
    TestContainer source("source", trace);
    TestContainer target("target", trace);
    TestContainer part;
    target.parts = {{&part, false}};
    setCount(source, 3);
    (void)trace.take();
    target.subPropertyContainerListMoved(source, {.updateEnclosingContainers = true});
    EXPECT_EQ(trace.take(), "source.changed=0 target.changed=3");
    EXPECT_EQ(part.enclosingPropertyContainer(), &target);
}

TEST(PropertyContainer, SwappedListsSwapTheirCountsThisOneFirst) {
    Trace trace;
    TestContainer first("first", trace);
    TestContainer second("second", trace);
    TestContainer firstPart;
    TestContainer secondPart;
    first.parts = {{&firstPart, false}};
    second.parts = {{&secondPart, false}};
    setCount(first, 1);
    setCount(second, 2);
    (void)trace.take();
    first.subPropertyContainerListSwapped(second, {});
    EXPECT_EQ(firstPart.enclosingPropertyContainer(), nullptr);
    EXPECT_EQ(trace.take(), "first.changed=2 second.changed=1");
    first.subPropertyContainerListSwapped(second, {.updateEnclosingContainers = true});
    EXPECT_EQ(trace.take(), "first.changed=1 second.changed=2");
    EXPECT_EQ(firstPart.enclosingPropertyContainer(), &first);
    EXPECT_EQ(secondPart.enclosingPropertyContainer(), &second);
}

TEST(PropertyContainer, CopyingMovingOrSwappingItsListWithItselfDoesNothing) {
    Trace trace;
    TestContainer container("container", trace);
    TestContainer part;
    container.parts = {{&part}};
    setCount(container, 2);
    (void)trace.take();
    container.subPropertyContainerListCopied(container, {.updateEnclosingContainers = true});
    container.subPropertyContainerListMoved(container, {.updateEnclosingContainers = true});
    container.subPropertyContainerListSwapped(container, {.updateEnclosingContainers = true});
    EXPECT_EQ(trace.take(), "");
    EXPECT_EQ(subCount(container), 2U);
    EXPECT_EQ(part.enclosingPropertyContainer(), nullptr);
}

// Cross references and notifications.

class Reference : public CrossReferenceController {};

TEST(PropertyContainer, VisitsItsOwnReferencesBeforeThoseOfItsSubContainersDepthFirst) {
    std::array<Reference, 5> references;
    TestContainer root;
    TestContainer first;
    TestContainer inner;
    TestContainer second;
    TestContainer hidden;
    root.references = {{&references[0], true}};
    first.references = {{&references[1], true}};
    inner.references = {{&references[2], true}};
    second.references = {{&references[3], false}};
    hidden.references = {{&references[4], true}};
    first.parts = {{&inner}};
    root.parts = {{&first, true}, {&second, true}, {&hidden, false}};

    std::vector<std::ptrdiff_t> visited;
    const auto visit = [&](CrossReferenceController& reference) {
        visited.push_back(&static_cast<Reference&>(reference) - references.data());
    };
    root.forEachCrossReference(visit, {});
    EXPECT_THAT(visited, ElementsAre(0));
    visited.clear();
    root.forEachCrossReference(visit, {.recursive = true});
    EXPECT_THAT(visited, ElementsAre(0, 1, 2));
    visited.clear();
    root.forEachCrossReference(visit, {.recursive = true, .includeInvisible = true});
    EXPECT_THAT(visited, ElementsAre(0, 1, 2, 3, 4));
    visited.clear();
    second.forEachCrossReference(visit, {.includeInvisible = true});
    EXPECT_THAT(visited, ElementsAre(3));
}

TEST(PropertyContainer, RaisesANotificationOneLevelUpAndUnchanged) {
    Chain chain;
    chain.leaf.raisePropertyNotification(kList);
    EXPECT_THAT(chain.middle.raised, ElementsAre(kList.id()));
    EXPECT_THAT(chain.root.raised, IsEmpty());
    chain.root.raisePropertyNotification(kList);
    EXPECT_THAT(chain.root.raised, IsEmpty());
}

} // namespace
} // namespace corvane::workbench::bindings::test
