// The references that an element makes to itself and to its members.
#include "FakeElement.hpp"
#include "internal/RecordingProxy.hpp"
#include <corvane/workbench/model/AttributeReference.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/process/EventReference.hpp>
#include <corvane/workbench/process/TaskReference.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::tests {
namespace {

using ::testing::ElementsAre;
using workbench::model::Attribute;
using workbench::process::Event;
using workbench::process::EventSearchOptions;
using workbench::process::Task;

class ElementReferences : public ::testing::Test {
protected:
    ElementReferences() {
        pump.proxy = std::make_shared<RecordingProxy>("plant.pump", calls, &pump);
    }

    std::vector<std::string> calls;
    FakeElement pump;
};

TEST_F(ElementReferences, AReferenceToTheElementHasNoMember) {
    const auto reference = pump.makeReference();
    EXPECT_EQ(reference.primaryKey(), "plant.pump");
    EXPECT_EQ(&reference.element()->get(), &pump);
    EXPECT_EQ(reference.data().memberName(), std::nullopt);
    EXPECT_THAT(calls, ElementsAre("plant.pump.attach -> 1"));
}

TEST_F(ElementReferences, MemberReferencesAreMadeByName) {
    EXPECT_EQ(pump.makeAttributeReference("speed").primaryKey(), "plant.pump.speed");
    EXPECT_EQ(pump.makeEventReference("started").primaryKey(), "plant.pump.started");
    EXPECT_EQ(pump.makeTaskReference("start").primaryKey(), "plant.pump.start");
    EXPECT_THAT(pump.takeCalls(),
                ElementsAre("referenceDataImpl(speed)", "referenceDataImpl(started)",
                            "referenceDataImpl(start)"));
}

TEST_F(ElementReferences, MemberReferencesAreMadeFromDescriptors) {
    EXPECT_EQ(pump.makeAttributeReference(Attribute::kQuality).primaryKey(), "plant.pump.quality");
    EXPECT_EQ(pump.makeEventReference(Event::kConnected).primaryKey(), "plant.pump.connected");
    EXPECT_EQ(pump.makeTaskReference(Task::kReconnect).primaryKey(), "plant.pump.reconnect");
}

TEST_F(ElementReferences, AnEventReferenceKeepsTheOptions) {
    const EventSearchOptions options{true, true};
    EXPECT_EQ(pump.makeEventReference("started", options).options(), options);
    EXPECT_EQ(pump.makeEventReference(Event::kConnected, options).options(), options);
    EXPECT_EQ(pump.makeEventReference("started").options(), EventSearchOptions{});
}

TEST_F(ElementReferences, AReferenceToAMissingMemberFailsOnlyWhenItIsResolved) {
    pump.key = "plant.pump";
    const auto reference = pump.makeAttributeReference("speed");
    EXPECT_TRUE(static_cast<bool>(reference));
    EXPECT_EQ(reference.attribute().error(),
              L"the element “plant.pump” does not have an attribute named “speed”");
}

TEST_F(ElementReferences, AReferenceToAPresentMemberResolves) {
    pump.attributeList.push_back(Attribute::kQuality);
    pump.eventList.push_back(Event::kConnected);
    pump.taskList.push_back(Task::kReconnect);
    EXPECT_EQ(pump.makeAttributeReference("quality").attribute()->name(), "quality");
    EXPECT_EQ(pump.makeEventReference("connected").event()->name(), "connected");
    EXPECT_EQ(pump.makeEventReference("quality", {true, false}).event()->name(), "quality");
    EXPECT_EQ(pump.makeTaskReference("reconnect").task()->name(), "reconnect");
}

} // namespace
} // namespace corvane::tests
