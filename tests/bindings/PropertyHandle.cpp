#include <corvane/workbench/bindings/PropertyHandle.hpp>

#include "PrivateMember.hpp"
#include "TestController.hpp"
#include "Trace.hpp"
#include <corvane/workbench/bindings/PropertyKey.hpp>

#include <gtest/gtest.h>

#include <memory>

namespace corvane::workbench::bindings::test {

struct HandleController {
    friend constexpr auto reveal(HandleController);
};
struct HandleProperty {
    friend constexpr auto reveal(HandleProperty);
};
struct DummyState {
    friend constexpr auto reveal(DummyState);
};
template struct PrivateMember<HandleController, &PropertyHandle::controller_>;
template struct PrivateMember<HandleProperty, &PropertyHandle::property_>;
template struct PrivateMember<DummyState, &PropertyController::kDummyState>;

namespace {

const PropertyKey kSpeed;

TEST(PropertyHandle, KeepsTheControllerBeforeTheProperty) {
    const PropertyHandle handle;
    EXPECT_EQ(offsetOf(handle, reveal(HandleController{})), 0);
    EXPECT_EQ(offsetOf(handle, reveal(HandleProperty{})), 8);
    EXPECT_EQ(sizeof(PropertyHandle), 24U);
}

TEST(PropertyHandle, IsFalseInvisibleAndInTheSuccessStateByDefault) {
    const PropertyHandle handle;
    EXPECT_FALSE(handle);
    EXPECT_FALSE(handle.property());
    EXPECT_FALSE(handle.visible());
    EXPECT_TRUE(handle.state().has_value());
    EXPECT_EQ(&handle.state(), reveal(DummyState{}));
}

TEST(PropertyHandle, IgnoresPublicationsByDefault) {
    const PropertyHandle handle;
    handle.publish(Action::Insert, 1);
    handle.publishValue(Action::Insert, 1);
    handle.publishState();
    handle.publishVisibility();
    EXPECT_FALSE(handle);
}

TEST(PropertyHandle, SubscribesEmptyAndDestroysTheCallbacksByDefault) {
    const PropertyHandle handle;
    const auto witness = std::make_shared<int>(0);
    const auto subscription = handle.subscribe({.value = [witness] {}});
    EXPECT_FALSE(subscription);
    EXPECT_EQ(witness.use_count(), 1);
}

TEST(PropertyHandle, NamesAControllerAndItsProperty) {
    TestController controller;
    const PropertyHandle handle = controller.propertyHandle(kSpeed);
    EXPECT_TRUE(handle);
    EXPECT_EQ(&handle.controller(), &controller);
    EXPECT_EQ(handle.property(), kSpeed.id());
    EXPECT_EQ(controller.configurations, 0);
}

TEST(PropertyHandle, WithAnEmptyIdentifierIsFalseYetReachesTheController) {
    Trace trace;
    TestController controller;
    const PropertyHandle handle = controller.propertyHandle(PropertyId());
    EXPECT_FALSE(handle);
    EXPECT_TRUE(handle.visible());
    EXPECT_EQ(controller.configurations, 1);
    const auto subscription = handle.subscribe({.value = trace.adder("value")});
    EXPECT_TRUE(subscription);
    handle.publishValue(Action::Update, 0);
    EXPECT_EQ(trace.take(), "value");
}

TEST(PropertyHandle, CopiesBothFields) {
    TestController controller;
    const PropertyHandle handle = controller.propertyHandle(kSpeed);
    PropertyHandle copy = handle;
    EXPECT_EQ(&copy.controller(), &controller);
    EXPECT_EQ(copy.property(), kSpeed.id());
    copy = PropertyHandle();
    EXPECT_FALSE(copy);
    copy = handle;
    EXPECT_TRUE(copy);
}

TEST(PropertyHandle, ForwardsEveryOperationToTheController) {
    Trace trace;
    bool good = true;
    bool shown = true;
    TestController controller([&](TestController::Context& context) {
        context.configure(kSpeed, {.state = [&] { return successIf(good); },
                                   .visibility = [&] { return shown; }});
    });
    const PropertyHandle handle = controller.propertyHandle(kSpeed);
    const auto subscription =
        handle.subscribe({.value =
                              [&](Action action, std::size_t index) {
                                  trace.add("value" + std::to_string(static_cast<int>(action)) +
                                            "@" + std::to_string(index));
                              },
                          .state = trace.adder("state"),
                          .visibility = trace.adder("visibility")});
    EXPECT_TRUE(handle.state().has_value());
    EXPECT_TRUE(handle.visible());

    handle.publishValue(Action::Remove, 4);
    EXPECT_EQ(trace.take(), "value2@4");
    good = false;
    handle.publish(Action::Insert, 3);
    EXPECT_EQ(trace.take(), "value1@3 state");
    EXPECT_EQ(handle.state().error(), L"wrong");
    good = true;
    handle.publishState();
    EXPECT_EQ(trace.take(), "state");
    shown = false;
    handle.publishVisibility();
    EXPECT_EQ(trace.take(), "visibility");
    EXPECT_FALSE(handle.visible());
}

} // namespace
} // namespace corvane::workbench::bindings::test
