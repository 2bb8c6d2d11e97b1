#include <corvane/workbench/bindings/CrossReferenceController.hpp>

#include "TestController.hpp"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

namespace corvane::workbench::bindings {
namespace {

using test::TestController;

static_assert(std::is_abstract_v<CrossReferenceController>);
static_assert(std::has_virtual_destructor_v<CrossReferenceController>);
static_assert(sizeof(CrossReferenceController) == 2 * sizeof(void*));

class Reference : public CrossReferenceController {};

TEST(CrossReferenceController, HasNoReferringControllerAtFirst) {
    const Reference reference;
    EXPECT_EQ(reference.referringController(), nullptr);
}

TEST(CrossReferenceController, RemembersTheControllerItWasRegisteredWith) {
    TestController controller;
    Reference reference;
    reference.setReferringController(controller);
    EXPECT_EQ(reference.referringController(), &controller);
}

TEST(CrossReferenceController, RegisteringAgainReplacesTheLink) {
    TestController first;
    TestController second;
    Reference reference;
    reference.setReferringController(first);
    reference.setReferringController(second);
    EXPECT_EQ(reference.referringController(), &second);
}

TEST(CrossReferenceController, ACopyHasNoReferringController) {
    TestController controller;
    Reference reference;
    reference.setReferringController(controller);
    const Reference copy = reference;
    EXPECT_EQ(copy.referringController(), nullptr);
    EXPECT_EQ(reference.referringController(), &controller);
}

TEST(CrossReferenceController, AMovedOneHasNoReferringControllerAndTheSourceKeepsItsOwn) {
    TestController controller;
    Reference reference;
    reference.setReferringController(controller);
    const Reference moved = std::move(reference);
    EXPECT_EQ(moved.referringController(), nullptr);
    EXPECT_EQ(reference.referringController(), &controller);
}

TEST(CrossReferenceController, AssigningLeavesEachRegisteredWithItsOwnController) {
    TestController firstController;
    TestController secondController;
    Reference first;
    Reference second;
    first.setReferringController(firstController);
    second.setReferringController(secondController);
    first = second;
    EXPECT_EQ(first.referringController(), &firstController);
    EXPECT_EQ(second.referringController(), &secondController);
    first = std::move(second);
    EXPECT_EQ(first.referringController(), &firstController);
    EXPECT_EQ(second.referringController(), &secondController);
}

TEST(CrossReferenceController, ConfiguringAPropertyRegistersItsReference) {
    Reference reference;
    TestController controller([&](TestController::Context& context) {
        context.configure(TestController::propertyId({1, 0}), {},
                          {.crossReferenceController = &reference});
    });
    EXPECT_EQ(reference.referringController(), nullptr);
    EXPECT_TRUE(controller.propertyVisible(PropertyId()));
    EXPECT_EQ(reference.referringController(), &controller);
}

} // namespace
} // namespace corvane::workbench::bindings
