// What a callback may do while it runs: every kind of callback with every action. The expectations
// stand in the documentation's table, which this test reads.
#include "TestContainer.hpp"
#include "TestController.hpp"
#include "Trace.hpp"
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::workbench::bindings::test {
namespace {

const PropertyKey kPublished;
const PropertyKey kOther;
const PropertyKey kNew;

constexpr std::array<std::string_view, 4> kKinds{"value", "state", "visibility", "error count"};
constexpr std::array<std::string_view, 10> kActions{
    "resets itself",
    "resets an earlier subscription",
    "resets a later subscription",
    "subscribes to the same",
    "subscribes to another",
    "publishes the same property",
    "publishes another property",
    "throws",
    "runs the configuration",
    "removes the last subscription",
};

// The rows of the page's one table with "action" as its first column heading, by action and kind.
std::map<std::string, std::map<std::string, std::string>> readPage() {
    std::map<std::string, std::map<std::string, std::string>> table;
    std::ifstream page(CORVANE_REENTRANCY_PAGE);
    std::vector<std::string> heading;
    for (std::string line; std::getline(page, line);) {
        std::vector<std::string> cells;
        for (std::size_t start = 1; line.starts_with('|') && start < line.size();) {
            const auto end = std::min(line.find('|', start), line.size());
            std::string cell = line.substr(start, end - start);
            cell.erase(0, cell.find_first_not_of(' '));
            cell.erase(cell.find_last_not_of(" \r") + 1);
            cells.push_back(cell);
            start = end + 1;
        }
        if (!cells.empty() && cells.front() == "the callback of B") {
            heading = cells;
        } else if (cells.size() == heading.size()) {
            for (std::size_t i = 1; i < cells.size(); ++i) {
                table[cells.front()][heading[i]] = cells[i];
            }
        }
    }
    return table;
}

// Three subscribers A, B and C hear of one publication; B acts in its callback, once.
class Cell {
public:
    explicit Cell(std::string_view kind) : kind_(kind) {}

    // "A B C, then A C": who is called in the publication in which B acts, and in the next one.
    std::string play(std::string_view action) {
        chooseAction(action);
        if (action == "removes the last subscription") {
            subscribe(b_, "B");
        } else {
            subscribe(a_, "A");
            subscribe(b_, "B");
            subscribe(c_, "C");
        }
        if (action == "runs the configuration") {
            const std::string first = round(true);
            return first + ", then " + round(false);
        }
        configure();
        const std::string first = round(false);
        return first + ", then " + round(false);
    }

    [[nodiscard]] int configurations() const { return controller_.configurations; }

private:
    struct Handle {
        PropertyController::Subscription property;
        PropertyContainer::ErrorCountSubscription count;
        void reset() {
            property.reset();
            count.reset();
        }
    };

    void chooseAction(std::string_view action) {
        const std::map<std::string_view, std::function<void()>> actions{
            {"resets itself", [this] { b_.reset(); }},
            {"resets an earlier subscription", [this] { a_.reset(); }},
            {"resets a later subscription", [this] { c_.reset(); }},
            {"subscribes to the same", [this] { subscribe(extra_, "N"); }},
            {"subscribes to another", [this] { subscribeToAnother(); }},
            {"publishes the same property", [this] { publishAgain(); }},
            {"publishes another property", [this] { publishOther(); }},
            {"throws", [] { throw std::runtime_error("from the callback"); }},
            {"runs the configuration", [this] { configure(); }},
            {"removes the last subscription", [this] { b_.reset(); }},
        };
        action_ = actions.at(action);
    }

    void subscribe(Handle& handle, std::string name) {
        auto callback = [this, name] {
            trace_.add(name);
            if (name == "B" && action_) {
                std::exchange(action_, nullptr)();
            }
        };
        if (kind_ == "error count") {
            handle.count = controller_.subscribeToPropertyErrorCount(callback);
        } else if (kind_ == "value") {
            handle.property = controller_.subscribe(kPublished, {.value = callback});
        } else if (kind_ == "state") {
            handle.property = controller_.subscribe(kPublished, {.state = callback});
        } else {
            handle.property = controller_.subscribe(kPublished, {.visibility = callback});
        }
    }

    void subscribeToAnother() {
        if (kind_ == "error count") {
            extra_.count = another_.subscribeToPropertyErrorCount(trace_.adder("N"));
        } else {
            extra_.property = controller_.subscribe(kNew, {.value = trace_.adder("N")});
        }
    }

    void configure() { static_cast<void>(controller_.propertyState(kOther)); }

    // One publication that calls the callbacks of this kind.
    void publish() {
        if (kind_ == "value") {
            controller_.publishValue(kPublished, Action::Update, 0);
        } else if (kind_ == "visibility") {
            visible_ = !visible_;
            controller_.publishVisibility(kPublished);
        } else {
            good_ = !good_;
            controller_.publishState(kPublished);
        }
    }

    // The change that B makes to the property while its change is being published.
    void publishAgain() { publish(); }

    void publishOther() {
        otherGood_ = false;
        controller_.publish(kOther, Action::Update, 0);
    }

    std::string round(bool byConfiguring) {
        std::string thrown;
        try {
            if (byConfiguring && kind_ != "value") {
                // The first configuration finds the property changed and calls back.
                good_ = kind_ == "visibility";
                visible_ = kind_ != "visibility";
                configure();
            } else {
                publish();
            }
        } catch (const std::runtime_error&) {
            thrown = " throws";
        }
        const std::string called = trace_.take() + thrown;
        return called.empty() ? "nobody" : called;
    }

    std::string_view kind_;
    Trace trace_;
    bool good_ = true;
    bool otherGood_ = true;
    bool visible_ = true;
    TestController another_;
    TestController controller_{[this](TestController::Context& context) {
        // A property with no rules of its own goes with its last subscription.
        if (kind_ != "value") {
            context.configure(kPublished, {.state = [this] { return successIf(good_); },
                                           .visibility = [this] { return visible_; }});
        }
        context.configure(kOther, {.state = [this] { return successIf(otherGood_); }});
    }};
    std::function<void()> action_;
    // Subscriptions end before their controller.
    Handle a_;
    Handle b_;
    Handle c_;
    Handle extra_;
    PropertyController::Subscription other_ =
        controller_.subscribe(kOther, {.value = trace_.adder("Q")});
};

class Reentrancy : public ::testing::TestWithParam<std::tuple<std::string_view, std::string_view>> {
};

TEST_P(Reentrancy, GoesAsThePageSays) {
    const auto [kind, action] = GetParam();
    static const auto page = readPage();
    ASSERT_TRUE(page.contains(std::string(action))) << "the page has no row for this action";
    Cell cell(kind);
    EXPECT_EQ(cell.play(action), page.at(std::string(action)).at(std::string(kind)));
    EXPECT_EQ(cell.configurations(), 1) << "configured more than once";
}

std::string
nameOf(const ::testing::TestParamInfo<std::tuple<std::string_view, std::string_view>>& info) {
    std::string name = "A " + std::string(std::get<0>(info.param)) + " callback that " +
                       std::string(std::get<1>(info.param));
    std::erase(name, ' ');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Matrix, Reentrancy,
                         ::testing::Combine(::testing::ValuesIn(kKinds),
                                            ::testing::ValuesIn(kActions)),
                         nameOf);

TEST(ReentrancyPage, HasARowForEachActionAndNoOther) {
    const auto page = readPage();
    EXPECT_EQ(page.size(), kActions.size() + 1) << "each action, and the ruler below the heading";
    for (const auto action : kActions) {
        EXPECT_TRUE(page.contains(std::string(action))) << action;
    }
}

// What goes beyond the matrix.

TEST(Reentrancy, APropertyWhoseLastSubscriberLeavesStillRaisesItsNotifications) {
    Trace trace;
    TestController owner;
    TestController row;
    row.onConfigure = [](TestController::Context& context) {
        context.configure(kPublished, {.raisedProperties = {kOther}});
    };
    row.setEnclosingPropertyContainer(owner, {});
    const auto heard = owner.subscribe(kOther, {.value = trace.adder("raised")});
    PropertyController::Subscription last;
    last = row.subscribe(kPublished, {.value = [&] {
                             trace.add("value");
                             last.reset();
                         }});
    row.publishValue(kPublished, Action::Update, 0);
    EXPECT_EQ(trace.take(), "value raised");
}

TEST(Reentrancy, ASubscriberThatEndsItselfInItsValueCallbackHearsNoFurtherCallbackOfItsTurn) {
    Trace trace;
    bool good = true;
    TestController controller([&](TestController::Context& context) {
        context.configure(kPublished, {.state = [&] { return successIf(good); }});
    });
    PropertyController::Subscription own;
    own = controller.subscribe(kPublished, {.value =
                                                [&] {
                                                    trace.add("value");
                                                    own.reset();
                                                },
                                            .state = trace.adder("state")});
    static_cast<void>(controller.propertyState(kPublished));
    good = false;
    controller.publish(kPublished, Action::Update, 0);
    EXPECT_EQ(trace.take(), "value");
}

TEST(Reentrancy, ANestedFullPublicationChangesTheStateWithoutAStateCallback) {
    Trace trace;
    bool good = true;
    bool nested = false;
    TestController controller([&](TestController::Context& context) {
        context.configure(kPublished, {.state = [&] { return successIf(good); }});
    });
    const auto own = controller.subscribe(
        kPublished, {.value =
                         [&] {
                             trace.add("value");
                             if (!std::exchange(nested, true)) {
                                 good = false;
                                 controller.publish(kPublished, Action::Update, 0);
                             }
                         },
                     .state = trace.adder("state")});
    static_cast<void>(controller.propertyState(kPublished));
    controller.publish(kPublished, Action::Update, 0);
    EXPECT_EQ(trace.take(), "value");
    EXPECT_FALSE(controller.propertyState(kPublished));
    EXPECT_EQ(controller.propertyErrorCount(), 1U);
}

TEST(Reentrancy, ANestedFullPublicationInsideAValuePublicationCallsTheStateCallback) {
    Trace trace;
    bool good = true;
    bool nested = false;
    TestController controller([&](TestController::Context& context) {
        context.configure(kPublished, {.state = [&] { return successIf(good); }});
    });
    const auto own = controller.subscribe(
        kPublished, {.value =
                         [&] {
                             trace.add("value");
                             if (!std::exchange(nested, true)) {
                                 good = false;
                                 controller.publish(kPublished, Action::Update, 0);
                             }
                         },
                     .state = trace.adder("state")});
    static_cast<void>(controller.propertyState(kPublished));
    controller.publishValue(kPublished, Action::Update, 0);
    EXPECT_EQ(trace.take(), "value state");
}

TEST(Reentrancy, AnEntryMadeAnewDuringItsOwnPublicationIsAnotherOne) {
    Trace trace;
    TestController controller;
    PropertyController::Subscription first;
    PropertyController::Subscription second;
    first = controller.subscribe(kNew, {.value = [&] {
                                     trace.add("first");
                                     first.reset();
                                     second = controller.subscribe(
                                         kNew, {.value = trace.adder("second")});
                                 }});
    controller.publishValue(kNew, Action::Update, 0);
    EXPECT_EQ(trace.take(), "first");
    controller.publishValue(kNew, Action::Update, 0);
    EXPECT_EQ(trace.take(), "second");
}

// Nested changes of error counts.

TEST(Reentrancy, ACountThatIsTakenBackBeforeItIsPassedOnIsNotHeardAbove) {
    Trace trace;
    TestContainer outer("outer", trace);
    TestContainer middle("middle", trace);
    TestContainer inner("inner", trace);
    outer.parts = {{&middle}};
    middle.parts = {{&inner}};
    inner.setEnclosingPropertyContainer(middle, {});
    middle.setEnclosingPropertyContainer(outer, {});
    middle.onErrorCountChanged = [&] {
        if (inner.local != 0) {
            inner.setLocal(0);
        }
    };
    inner.setLocal(1);
    EXPECT_EQ(trace.take(), "inner.changed=1 middle.changed=1 inner.changed=0 middle.changed=0");
    EXPECT_EQ(outer.propertyErrorCount(), 0U);
}

TEST(Reentrancy, CountChangesThatAnOwnerHasNotHeardOfYetReachItAsOne) {
    Trace trace;
    TestContainer outer("outer", trace);
    TestContainer middle("middle", trace);
    TestContainer inner("inner", trace);
    outer.parts = {{&middle}};
    middle.parts = {{&inner}};
    inner.setEnclosingPropertyContainer(middle, {});
    middle.setEnclosingPropertyContainer(outer, {});
    middle.onErrorCountChanged = [&] {
        if (inner.local == 1) {
            inner.setLocal(3);
        }
    };
    inner.setLocal(1);
    EXPECT_EQ(trace.take(), "inner.changed=1 middle.changed=1 inner.changed=3 middle.changed=3 "
                            "outer.changed=3");
}

TEST(Reentrancy, RelinkingWithBothKeepFlagsAndReportingBothListsKeepsCountsRight) {
    TestContainer part;
    TestContainer former;
    TestContainer next;
    for (TestContainer* const acting : {&part, &former}) {
        part.setEnclosingPropertyContainer(former, {});
        former.parts = {{&part}};
        next.parts.clear();
        acting->onErrorCountChanged = [&] {
            if (!former.parts.empty()) {
                next.parts = std::exchange(former.parts, {});
                part.setEnclosingPropertyContainer(
                    next, {.keepNewContainerCount = true, .keepOldContainerCount = true});
                former.subPropertyContainerListChanged({});
                next.subPropertyContainerListChanged({});
            }
        };
        part.setLocal(2);
        EXPECT_EQ(former.propertyErrorCount(), 0U);
        EXPECT_EQ(next.propertyErrorCount(), 2U);
        part.setLocal(0);
        EXPECT_EQ(next.propertyErrorCount(), 0U);
        acting->onErrorCountChanged = nullptr;
    }
}

/// A part of an owner, which is a part of a root; all linked and without errors.
struct Nested {
    Nested() {
        root.parts = {{&owner}};
        owner.parts = {{&part}};
        owner.setEnclosingPropertyContainer(root, {});
        part.setEnclosingPropertyContainer(owner, {});
    }
    /// Has the action run once, when the container's count changes.
    static void once(TestContainer& container, std::function<void()> action) {
        container.onErrorCountChanged = [action = std::move(action), done = false]() mutable {
            if (!std::exchange(done, true)) {
                action();
            }
        };
    }

    Trace trace;
    TestContainer root{"root", trace};
    TestContainer owner{"owner", trace};
    TestContainer part{"part", trace};
};

TEST(Reentrancy, AContainerThatIsUnlinkedDuringItsOwnAnnouncementCountsNowhere) {
    Nested nested;
    Nested::once(nested.part, [&] {
        nested.owner.parts.clear();
        nested.part.resetEnclosingPropertyContainer({});
    });
    nested.part.setLocal(2);
    EXPECT_EQ(nested.part.propertyErrorCount(), 2U);
    EXPECT_EQ(nested.owner.propertyErrorCount(), 0U);
    EXPECT_EQ(nested.root.propertyErrorCount(), 0U);
}

TEST(Reentrancy, AContainerThatIsUnlinkedWhileItPassesACountOnTakesItAlong) {
    Nested nested;
    Nested::once(nested.owner, [&] {
        nested.root.parts.clear();
        nested.owner.resetEnclosingPropertyContainer({});
    });
    nested.part.setLocal(2);
    EXPECT_EQ(nested.owner.propertyErrorCount(), 2U);
    EXPECT_EQ(nested.root.propertyErrorCount(), 0U);
    EXPECT_EQ(nested.trace.take(), "part.changed=2 owner.changed=2");
}

TEST(Reentrancy, AContainerThatIsLinkedElsewhereDuringItsOwnAnnouncementCountsThereOnly) {
    for (const bool passesOn : {false, true}) {
        Nested nested;
        TestContainer next;
        TestContainer& moved = passesOn ? nested.owner : nested.part;
        TestContainer& former = passesOn ? nested.root : nested.owner;
        Nested::once(moved, [&] {
            next.parts = std::exchange(former.parts, {});
            moved.setEnclosingPropertyContainer(next, {});
        });
        nested.part.setLocal(2);
        EXPECT_EQ(moved.propertyErrorCount(), 2U);
        EXPECT_EQ(former.propertyErrorCount(), 0U);
        EXPECT_EQ(next.propertyErrorCount(), 2U);
        EXPECT_EQ(nested.root.propertyErrorCount(), 0U);
    }
}

TEST(Reentrancy, AContainerThatIsLinkedDuringItsOwnAnnouncementCountsOnce) {
    TestContainer owner;
    TestContainer part;
    Nested::once(part, [&] {
        owner.parts = {{&part}};
        part.setEnclosingPropertyContainer(owner, {});
    });
    part.setLocal(2);
    EXPECT_EQ(owner.propertyErrorCount(), 2U);
}

TEST(Reentrancy, ARecountThatItsWalkHasOutdatedIsRepeatedAndHeardOfOnce) {
    Nested nested;
    TestContainer second;
    second.local = 3;
    nested.owner.parts.push_back({&second});
    // The first part has been counted when the second one changes it.
    second.onLocalQuery = [&] {
        if (nested.part.local == 0) {
            nested.part.setLocal(5);
        }
    };
    nested.owner.subPropertyContainerListChanged({});
    EXPECT_EQ(nested.owner.propertyErrorCount(), 8U);
    EXPECT_EQ(nested.root.propertyErrorCount(), 8U);
    EXPECT_EQ(nested.trace.take(), "part.changed=5 owner.changed=8 root.changed=8");
}

TEST(Reentrancy, ARecountDuringAnAnnouncementCountsNothingTwice) {
    Nested nested;
    Nested::once(nested.owner, [&] { nested.root.subPropertyContainerListChanged({}); });
    nested.part.setLocal(2);
    EXPECT_EQ(nested.root.propertyErrorCount(), 2U);
    EXPECT_EQ(nested.trace.take(), "part.changed=2 owner.changed=2 root.changed=2");
}

} // namespace
} // namespace corvane::workbench::bindings::test
