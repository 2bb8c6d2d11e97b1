// Memory that runs out at any moment leaves flags, counts and tables right, and a publication needs
// none. A program of its own, because it replaces the allocator.
#include "TestController.hpp"
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <new>
#include <vector>

namespace {

// How many allocations are still granted; below zero: all.
long remaining = -1;
std::size_t count = 0;

void* allocate(std::size_t size) {
    ++count;
    if (remaining == 0) {
        throw std::bad_alloc();
    }
    if (remaining > 0) {
        --remaining;
    }
    void* const memory = std::malloc(size == 0 ? 1 : size); // NOLINT: this is the allocator
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

} // namespace

void* operator new(std::size_t size) {
    return allocate(size);
}
void* operator new[](std::size_t size) {
    return allocate(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return std::malloc(size == 0 ? 1 : size); // NOLINT
}
void operator delete(void* memory) noexcept {
    std::free(memory); // NOLINT
}
void operator delete[](void* memory) noexcept {
    std::free(memory); // NOLINT
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory); // NOLINT
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory); // NOLINT
}

namespace corvane::workbench::bindings::test {
namespace {

const PropertyKey kMain;
const PropertyKey kDependent;
const PropertyKey kList;
const PropertyKey kUnknown;

// Grants some allocations while it lives, then none.
class Budget {
public:
    explicit Budget(long allocations) { remaining = allocations; }
    Budget(const Budget&) = delete;
    Budget& operator=(const Budget&) = delete;
    ~Budget() { remaining = -1; }
};

struct Scene {
    Scene() {
        root.onConfigure = [this](TestController::Context& context) {
            context.configure(kList, {}, {.subPropertyContainer = &owner});
        };
        owner.onConfigure = [this](TestController::Context& context) {
            context.configure(
                kMain, {.state = [this] { return successIf(good); }, .raisedProperties = {kList}});
            context.configure(kDependent, {.valueDependencies = {kMain},
                                           .state = [this] { return successIf(good); },
                                           .stateDependencies = {kMain}});
        };
    }

    bool good = true;
    int values = 0;
    int states = 0;
    TestController root;
    TestController owner;
    PropertyController::Subscription main =
        owner.subscribe(kMain, {.value = [this] { ++values; }, .state = [this] { ++states; }});
    PropertyController::Subscription dependent =
        owner.subscribe(kDependent, {.value = [this] { ++values; }, .state = [this] { ++states; }});
};

// Runs the operation with no allocation granted, then one, then two, until it succeeds.
template <class Operation, class Check>
int failEachAllocation(Operation&& operation, Check&& check) {
    for (long granted = 0; granted < 1'000; ++granted) {
        Scene scene;
        bool failed = false;
        {
            const Budget budget(granted);
            try {
                operation(scene);
            } catch (const std::bad_alloc&) {
                failed = true;
            }
        }
        check(scene, failed);
        if (!failed) {
            return static_cast<int>(granted);
        }
    }
    ADD_FAILURE() << "the operation does not come to an end";
    return -1;
}

void expectAllGood(Scene& scene) {
    EXPECT_EQ(scene.root.propertyErrorCount(), scene.good ? 0U : 2U);
    scene.good = false;
    scene.owner.publish(kMain, Action::Update, 0);
    EXPECT_EQ(scene.owner.propertyErrorCount(), 2U);
    EXPECT_EQ(scene.root.propertyErrorCount(), 2U);
    scene.values = scene.states = 0;
    scene.good = true;
    scene.owner.publish(kMain, Action::Update, 0);
    EXPECT_EQ(scene.values, 2);
    EXPECT_EQ(scene.states, 2);
    EXPECT_EQ(scene.root.propertyErrorCount(), 0U);
}

TEST(Allocation, APublicationNeedsNone) {
    Scene scene;
    static_cast<void>(scene.root.propertyErrorCount());
    const std::size_t before = count;
    scene.owner.publish(kMain, Action::Update, 0);
    scene.owner.publishValue(kMain, Action::Insert, 3);
    scene.owner.publishState(kMain);
    scene.owner.publishVisibility(kDependent);
    EXPECT_EQ(count, before);
    EXPECT_EQ(scene.values, 4);
}

TEST(Allocation, EndingASubscriptionNeedsNone) {
    Scene scene;
    auto extra = scene.owner.subscribe(kUnknown, {.value = [] {}});
    const std::size_t before = count;
    extra.reset();
    EXPECT_EQ(count, before);
}

TEST(Allocation, FailingWhileSubscribingLeavesNoEntryAndNoSubscription) {
    const int needed = failEachAllocation(
        [](Scene& scene) {
            scene.dependent.reset();
            const auto kept =
                scene.owner.subscribe(kUnknown, {.value = [&scene] { ++scene.values; }});
        },
        [](Scene& scene, bool) {
            scene.owner.publishValue(kUnknown, Action::Update, 0);
            EXPECT_EQ(scene.values, 0);
            EXPECT_TRUE(scene.owner.propertyVisible(kUnknown));
        });
    EXPECT_GT(needed, 0);
}

TEST(Allocation, FailingWhileConfiguringLeavesAControllerThatWorksOnceItIsDescribedAgain) {
    // Configuration happens once, so what it could not do is not made up for; but nothing breaks.
    failEachAllocation([](Scene& scene) { static_cast<void>(scene.owner.propertyState(kMain)); },
                       [](Scene& scene, bool failed) {
                           scene.owner.publish(kMain, Action::Update, 0);
                           EXPECT_EQ(scene.owner.configurations, 1);
                           if (!failed) {
                               expectAllGood(scene);
                           }
                       });
}

TEST(Allocation, FailingWhilePublishingLeavesThingsAsIfThePublicationHadJustEnded) {
    for (long granted = 0; granted < 50; ++granted) {
        Scene scene;
        static_cast<void>(scene.root.propertyErrorCount());
        scene.good = false;
        {
            const Budget budget(granted);
            try {
                scene.owner.publish(kMain, Action::Update, 0);
            } catch (const std::bad_alloc&) {
            }
        }
        scene.owner.publish(kMain, Action::Update, 0);
        EXPECT_EQ(scene.owner.propertyErrorCount(), 2U) << granted << " allocations granted";
        EXPECT_EQ(scene.root.propertyErrorCount(), 2U) << granted << " allocations granted";
        expectAllGood(scene);
    }
}

} // namespace
} // namespace corvane::workbench::bindings::test
