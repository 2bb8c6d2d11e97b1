// An exception from a callback at any position leaves flags, counts and tables right: the next
// publication behaves as if the failed one had just ended.
#include "TestController.hpp"
#include "Trace.hpp"
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

namespace corvane::workbench::bindings::test {
namespace {

const PropertyKey kMain;
const PropertyKey kDependent;
const PropertyKey kList;
const PropertyKey kRow;

// Every kind of callback there is, each of which throws when its turn has come.
class Scene {
public:
    Scene() {
        root_.onConfigure = [this](TestController::Context& context) {
            context.configure(kList, {}, {.subPropertyContainer = &owner_});
        };
        owner_.onConfigure = [this](TestController::Context& context) {
            context.configure(kMain, {.state = step("main?", [this] { return successIf(good_); }),
                                      .raisedProperties = {kList}});
            context.configure(kDependent,
                              {.valueDependencies = {kMain},
                               .state = step("dependent?", [this] { return successIf(good_); }),
                               .stateDependencies = {kMain},
                               .visibility = step("visible?", [this] { return visible_; }),
                               .visibilityDependencies = {kMain}},
                              {.subPropertyContainer = &row_});
        };
        row_.onConfigure = [](TestController::Context& context) {
            context.configure(kRow, {.state = [] { return failure(); }});
        };
        static_cast<void>(root_.propertyErrorCount());
        subscriptions_[0] =
            owner_.subscribe(kMain, {.value = step("main value"), .state = step("main state")});
        subscriptions_[1] = owner_.subscribe(kDependent, {.value = step("dependent value"),
                                                          .state = step("dependent state"),
                                                          .visibility = step("dependent shown")});
        subscriptions_[2] = root_.subscribe(kList, {.value = step("list value")});
        counts_[0] = owner_.subscribeToPropertyErrorCount(step("owner count"));
        counts_[1] = root_.subscribeToPropertyErrorCount(step("root count"));
    }

    /// Changes state and visibility of everything and publishes it. With a position, the callback
    /// whose turn comes at it throws; returns whether there was one.
    bool publish(int throwAt) {
        good_ = !good_;
        visible_ = !visible_;
        turn_ = 0;
        throwAt_ = throwAt;
        try {
            owner_.publish(kMain, Action::Update, 0);
        } catch (const std::runtime_error&) {
            return true;
        }
        return false;
    }

    std::string take() { return trace_.take(); }
    [[nodiscard]] std::uint64_t expectedOwnerCount() const {
        // An invisible property is in no error, nor do its rows count.
        return (good_ ? 0U : 1U) + (visible_ ? (good_ ? 0U : 1U) + 1U : 0U);
    }
    [[nodiscard]] std::uint64_t ownerCount() const { return owner_.propertyErrorCount(); }
    [[nodiscard]] std::uint64_t rootCount() const { return root_.propertyErrorCount(); }

private:
    std::function<void()> step(std::string name) {
        return [this, name = std::move(name)] { turn(name); };
    }
    template <class Function>
    std::function<std::invoke_result_t<Function>()> step(std::string name, Function function) {
        return [this, name = std::move(name), function = std::move(function)] {
            turn(name);
            return function();
        };
    }
    void turn(const std::string& name) {
        trace_.add("[" + name + "]");
        if (turn_++ == throwAt_) {
            throw std::runtime_error(name);
        }
    }

    bool good_ = true;
    bool visible_ = true;
    int turn_ = 0;
    int throwAt_ = -1;
    Trace trace_;
    TestController root_;
    TestController owner_;
    TestController row_;
    std::array<PropertyController::Subscription, 3> subscriptions_;
    std::array<PropertyContainer::ErrorCountSubscription, 2> counts_;
};

TEST(Exceptions, WithoutOneEveryCallbackHasItsTurn) {
    Scene scene;
    scene.take();
    EXPECT_FALSE(scene.publish(-1));
    const std::string hiding = scene.take();
    EXPECT_NE(hiding.find("[main value]"), std::string::npos) << hiding;
    EXPECT_NE(hiding.find("[dependent shown]"), std::string::npos) << hiding;
    EXPECT_NE(hiding.find("[owner count]"), std::string::npos) << hiding;
    EXPECT_NE(hiding.find("[root count]"), std::string::npos) << hiding;
    EXPECT_NE(hiding.find("[list value]"), std::string::npos) << hiding;
    EXPECT_EQ(scene.ownerCount(), scene.expectedOwnerCount());
    EXPECT_EQ(scene.rootCount(), scene.expectedOwnerCount());
}

TEST(Exceptions, AtAnyPositionLeavesThingsAsIfThePublicationHadJustEnded) {
    int position = 0;
    for (bool thrown = true; thrown; ++position) {
        Scene scene;
        scene.take();
        thrown = scene.publish(position);
        scene.take();
        // Another one throws at no position, and leaves all right: what the first one did not come
        // to is made up for by the same publication with things as they are.
        for (int repetition = 0; repetition < 4; ++repetition) {
            EXPECT_FALSE(scene.publish(-1)) << "position " << position;
            EXPECT_EQ(scene.ownerCount(), scene.expectedOwnerCount()) << "position " << position;
            EXPECT_EQ(scene.rootCount(), scene.expectedOwnerCount()) << "position " << position;
        }
        // Flags that were left set would silence callbacks.
        scene.take();
        Scene fresh;
        fresh.take();
        for (int repetition = 0; repetition < 5; ++repetition) {
            fresh.publish(-1);
        }
        fresh.take();
        fresh.publish(-1);
        scene.publish(-1);
        EXPECT_EQ(scene.take(), fresh.take()) << "position " << position;
    }
    EXPECT_GT(position, 9) << "too few callbacks to be the whole story";
}

TEST(Exceptions, OfACallbackReachesThePublisherAfterTheCountsAreRight) {
    bool good = true;
    TestController root;
    TestController owner;
    root.onConfigure = [&](TestController::Context& context) {
        context.configure(kList, {}, {.subPropertyContainer = &owner});
    };
    owner.onConfigure = [&](TestController::Context& context) {
        context.configure(kMain, {.state = [&] { return successIf(good); }});
    };
    EXPECT_EQ(root.propertyErrorCount(), 0U);
    const auto heard = owner.subscribe(kMain, {.state = [] { throw std::runtime_error("stop"); }});
    good = false;
    EXPECT_THROW(owner.publish(kMain, Action::Update, 0), std::runtime_error);
    EXPECT_EQ(owner.propertyErrorCount(), 1U);
    EXPECT_EQ(root.propertyErrorCount(), 1U);
}

} // namespace
} // namespace corvane::workbench::bindings::test
