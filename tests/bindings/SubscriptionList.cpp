#include <corvane/workbench/bindings/internal/SubscriptionList.hpp>

#include "Trace.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace corvane::workbench::bindings::internal {
namespace {

using test::Trace;
using testing::ElementsAre;
using testing::IsEmpty;
using List = SubscriptionList<int, std::function<void()>>;

static_assert(sizeof(List) == sizeof(void*), "without subscribers there is no memory");
static_assert(std::is_nothrow_move_constructible_v<List>);

void call(const List& list) {
    list.forEach([](const List::Subscriber& subscriber) { (*subscriber.callbacks)(); });
}

std::vector<int> ids(const List& list) {
    std::vector<int> result;
    list.forEach([&](const List::Subscriber& subscriber) { result.push_back(subscriber.id); });
    return result;
}

List filled(int count) {
    List list;
    for (int id = 0; id < count; ++id) {
        list.insert(id, [] {});
    }
    return list;
}

TEST(SubscriptionList, WalksInTheOrderOfInsertionWhateverWasErased) {
    List list = filled(100);
    for (int id = 0; id < 100; ++id) {
        if (id % 25 != 0) {
            list.erase(id);
        }
    }
    list.insert(100, [] {});
    EXPECT_THAT(ids(list), ElementsAre(0, 25, 50, 75, 100));
    EXPECT_EQ(list.size(), 5U);
    list.erase(50);
    list.erase(50);
    list.erase(1000);
    EXPECT_THAT(ids(list), ElementsAre(0, 25, 75, 100));
    EXPECT_EQ(list.size(), 4U);
}

TEST(SubscriptionList, IsEmptyWhenAllWereErased) {
    List list = filled(3);
    for (const int id : {1, 0, 2}) {
        EXPECT_FALSE(list.empty());
        list.erase(id);
    }
    EXPECT_TRUE(list.empty());
    EXPECT_THAT(ids(list), IsEmpty());
    list.insert(3, [] {});
    EXPECT_THAT(ids(list), ElementsAre(3));
}

TEST(SubscriptionList, MovesNothingWhileItIsWalked) {
    List list;
    Trace trace;
    // The callable lies in the list itself, so that it would be lost if the list moved it.
    struct Inserting {
        List* list;
        Trace* trace;
        void operator()() const {
            const Inserting* const place = this;
            for (int id = 1; id <= 100; ++id) {
                list->insert(id, [] {});
            }
            for (int id = 1; id <= 98; ++id) {
                list->erase(id);
            }
            trace->add(place == this && list->size() == 3 ? "here" : "moved");
        }
    };
    list.insert(0, Inserting{.list = &list, .trace = &trace});
    call(list);
    EXPECT_EQ(trace.take(), "here");
    EXPECT_THAT(ids(list), ElementsAre(0, 99, 100));
    list.insert(101, [] {});
    EXPECT_THAT(ids(list), ElementsAre(0, 99, 100, 101));
}

TEST(SubscriptionList, VisitsInTheSameWalkWhatIsInsertedAndNotWhatIsErased) {
    List list;
    Trace trace;
    list.insert(0, [&] {
        trace.add("0");
        list.erase(1);
        list.insert(3, trace.adder("3"));
    });
    list.insert(1, trace.adder("1"));
    list.insert(2, trace.adder("2"));
    call(list);
    EXPECT_EQ(trace.take(), "0 2 3");
}

TEST(SubscriptionList, KeepsWhatWasErasedUntilTheOutermostWalkHasEnded) {
    List list;
    const auto witness = std::make_shared<int>(7);
    std::vector<long> uses;
    list.insert(0, [&, witness] {
        list.erase(0);
        uses.push_back(witness.use_count());
        call(list);
        uses.push_back(witness.use_count());
    });
    list.insert(1, [&] { uses.push_back(witness.use_count()); });
    call(list);
    EXPECT_THAT(uses, ElementsAre(2, 2, 2, 2)) << "alive inside, between and after the inner walk";
    EXPECT_EQ(witness.use_count(), 1);
    EXPECT_THAT(ids(list), ElementsAre(1));
}

/// Calls a function when it is destroyed, for the last time.
std::shared_ptr<void> atTheEnd(std::function<void()> function) {
    return {nullptr, [function = std::move(function)](void*) { function(); }};
}

TEST(SubscriptionList, DestructorsOfCallbacksMayComeBack) {
    for (const bool insideAWalk : {false, true}) {
        List list;
        Trace trace;
        list.insert(0, [last = atTheEnd([&] {
                            trace.add("0");
                            list.erase(1);
                            list.insert(3, trace.adder("3"));
                        })] {});
        list.insert(1, [last = atTheEnd([&] { trace.add("1"); })] {});
        list.insert(2, [&] { list.erase(0); });
        if (insideAWalk) {
            call(list);
        } else {
            list.erase(0);
        }
        EXPECT_EQ(trace.take(), "0 1");
        EXPECT_THAT(ids(list), ElementsAre(2, 3));
    }
}

TEST(SubscriptionList, TheDestructorOfTheLastCallbackMayComeBack) {
    List list;
    Trace trace;
    list.insert(0, [last = atTheEnd([&] { list.insert(1, trace.adder("1")); })] {});
    list.erase(0);
    EXPECT_THAT(ids(list), ElementsAre(1));
}

TEST(SubscriptionList, ACopyHasTheSameSubscribersAndItsOwnCallbacks) {
    List list = filled(5);
    list.erase(2);
    List copy = list;
    EXPECT_THAT(ids(copy), ElementsAre(0, 1, 3, 4));
    copy.erase(0);
    copy.insert(5, [] {});
    EXPECT_THAT(ids(copy), ElementsAre(1, 3, 4, 5));
    EXPECT_THAT(ids(list), ElementsAre(0, 1, 3, 4));
    list = copy;
    EXPECT_THAT(ids(list), ElementsAre(1, 3, 4, 5));
    EXPECT_TRUE(List(List()).empty());
}

TEST(SubscriptionList, MovingLeavesTheSourceWithoutSubscribers) {
    List source = filled(2);
    List target = std::move(source);
    EXPECT_THAT(ids(target), ElementsAre(0, 1));
    EXPECT_TRUE(source.empty()); // NOLINT: what a moved-from list is, is the point
    List other = filled(1);
    other = std::move(target);
    EXPECT_THAT(ids(other), ElementsAre(0, 1));
}

TEST(SubscriptionList, AWalkOverAListThatIsReplacedEndsBehindTheCurrentSubscriber) {
    List list;
    Trace trace;
    list.insert(0, [&, name = std::string("the one that replaces the list")] {
        list = filled(3);
        trace.add(name);
    });
    list.insert(1, trace.adder("1"));
    call(list);
    EXPECT_EQ(trace.take(), "the one that replaces the list");
    EXPECT_THAT(ids(list), ElementsAre(0, 1, 2));
}

TEST(SubscriptionList, LetsExceptionsThroughAndCanBeWalkedAgain) {
    List list;
    Trace trace;
    list.insert(0, [&] {
        list.erase(1);
        throw std::runtime_error("stop");
    });
    list.insert(1, [] {});
    list.insert(2, [] {});
    EXPECT_THROW(call(list), std::runtime_error);
    EXPECT_THAT(ids(list), ElementsAre(0, 2));
}

} // namespace
} // namespace corvane::workbench::bindings::internal
