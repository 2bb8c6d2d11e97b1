// What a reference asks of the controller that owns it.
#include "RecordingProxy.hpp"
#include <corvane/workbench/bindings/Action.hpp>
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace {

using corvane::tests::RecordingProxy;
using corvane::workbench::bindings::Action;
using corvane::workbench::bindings::PropertyController;
using corvane::workbench::bindings::PropertyId;
using corvane::workbench::model::internal::BasicElementReference;
using corvane::workbench::model::internal::ElementReferenceData;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Owner : public PropertyController {
public:
    ~Owner() override = default;

    BasicElementReference reference;
    bool visible = true;
    int configurations = 0;

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        ++configurations;
        context.configure(reference.propertyId(),
                          {.state = [this]() -> PropertyState {
                               if (reference.data().empty()) {
                                   return tl::unexpected(std::wstring(L"empty"));
                               }
                               return {};
                           },
                           .visibility = [this] { return visible; }},
                          {.crossReferenceController = &reference});
    }
};

class BasicElementReferenceNotifications : public ::testing::Test {
protected:
    PropertyController::SubscriptionCallbacks record() {
        return {.value =
                    [this](Action action, std::size_t index) {
                        heard.push_back("value " + std::to_string(static_cast<int>(action)) + " " +
                                        std::to_string(index));
                    },
                .state = [this] { heard.push_back("state"); },
                .visibility = [this] { heard.push_back("visibility"); }};
    }

    std::vector<std::string> calls;
    std::shared_ptr<RecordingProxy> pump = std::make_shared<RecordingProxy>("pump", calls);
    std::vector<std::string> heard;
    Owner owner;
};

TEST_F(BasicElementReferenceNotifications, WithoutAReferringControllerNothingIsPublishedOrVisible) {
    const BasicElementReference reference;
    reference.updateValue();
    reference.updatePrimaryKey();
    reference.updateState();
    EXPECT_FALSE(reference.isVisible());
}

TEST_F(BasicElementReferenceNotifications, AReferenceNamesItsPropertyByItsOwnAddress) {
    const BasicElementReference first;
    const BasicElementReference second;
    EXPECT_TRUE(static_cast<bool>(first.propertyId()));
    EXPECT_EQ(first.propertyId(), first.propertyId());
    EXPECT_NE(first.propertyId(), second.propertyId());
}

TEST_F(BasicElementReferenceNotifications, ConfiguringTheOwnerLinksTheReference) {
    EXPECT_EQ(owner.reference.referringController(), nullptr);
    EXPECT_TRUE(owner.propertyVisible(owner.reference.propertyId()));
    EXPECT_EQ(owner.reference.referringController(), &owner);
    EXPECT_TRUE(owner.reference.isVisible());
}

TEST_F(BasicElementReferenceNotifications, UpdateValuePublishesValueAndState) {
    EXPECT_FALSE(owner.propertyState(owner.reference.propertyId()).has_value());
    const auto subscription = owner.subscribe(owner.reference.propertyId(), record());
    owner.reference = ElementReferenceData(pump, "");
    EXPECT_THAT(heard, IsEmpty());
    owner.reference.updateValue();
    EXPECT_THAT(heard, ElementsAre("value 0 0", "state"));
    EXPECT_TRUE(owner.propertyState(owner.reference.propertyId()).has_value());
}

TEST_F(BasicElementReferenceNotifications, UpdatePrimaryKeyPublishesTheValueAlone) {
    EXPECT_FALSE(owner.propertyState(owner.reference.propertyId()).has_value());
    const auto subscription = owner.subscribe(owner.reference.propertyId(), record());
    owner.reference = ElementReferenceData(pump, "");
    owner.reference.updatePrimaryKey();
    EXPECT_THAT(heard, ElementsAre("value 0 0"));
    EXPECT_FALSE(owner.propertyState(owner.reference.propertyId()).has_value());
}

TEST_F(BasicElementReferenceNotifications, UpdateStatePublishesTheStateAlone) {
    EXPECT_FALSE(owner.propertyState(owner.reference.propertyId()).has_value());
    const auto subscription = owner.subscribe(owner.reference.propertyId(), record());
    owner.reference = ElementReferenceData(pump, "");
    owner.reference.updateState();
    EXPECT_THAT(heard, ElementsAre("state"));
    owner.reference.updateState();
    EXPECT_THAT(heard, ElementsAre("state"));
}

TEST_F(BasicElementReferenceNotifications, VisibilityIsThatOfTheProperty) {
    owner.visible = false;
    EXPECT_FALSE(owner.propertyVisible(owner.reference.propertyId()));
    EXPECT_FALSE(owner.reference.isVisible());
    owner.visible = true;
    owner.publishVisibility(owner.reference.propertyId());
    EXPECT_TRUE(owner.reference.isVisible());
}

TEST_F(BasicElementReferenceNotifications, StateAndVisibilityConfigureButValuesDoNot) {
    owner.reference.setReferringController(owner);
    owner.reference.updateValue();
    owner.reference.updatePrimaryKey();
    EXPECT_EQ(owner.configurations, 0);
    owner.reference.updateState();
    EXPECT_EQ(owner.configurations, 1);
    EXPECT_TRUE(owner.reference.isVisible());
    EXPECT_EQ(owner.configurations, 1);
}

TEST_F(BasicElementReferenceNotifications, NeitherCopiesNorMovesTakeTheReferringControllerAlong) {
    BasicElementReference source{ElementReferenceData(pump, "")};
    source.setReferringController(owner);
    const BasicElementReference copy(source);
    const BasicElementReference moved(std::move(source));
    EXPECT_EQ(copy.referringController(), nullptr);
    EXPECT_EQ(moved.referringController(), nullptr);
    EXPECT_EQ(source.referringController(), &owner);
}

TEST_F(BasicElementReferenceNotifications, EveryAssignmentKeepsTheTargetsReferringController) {
    Owner other;
    BasicElementReference target;
    target.setReferringController(owner);
    BasicElementReference source;
    source.setReferringController(other);
    target = source;
    target = ElementReferenceData(pump, "");
    target = std::move(source);
    EXPECT_EQ(target.referringController(), &owner);
    target.remap(pump);
    target.resolve(pump, ".valve");
    EXPECT_EQ(target.referringController(), &owner);
}

TEST_F(BasicElementReferenceNotifications, NothingNotifiesByItself) {
    EXPECT_TRUE(owner.propertyVisible(owner.reference.propertyId()));
    const auto subscription = owner.subscribe(owner.reference.propertyId(), record());
    owner.reference = ElementReferenceData(pump, ".valve");
    owner.reference.remap(std::make_shared<RecordingProxy>("tank", calls));
    owner.reference.resolve(pump, "");
    owner.reference = BasicElementReference();
    EXPECT_THAT(heard, IsEmpty());
}

} // namespace
