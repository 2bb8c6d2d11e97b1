#include <corvane/workbench/model/internal/ElementAccess.hpp>

#include "../FakeElement.hpp"
#include "../FakeSkillElement.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>
#include <typeinfo>
#include <utility>

namespace {

using corvane::tests::FakeElement;
using corvane::tests::FakeElementClass;
using corvane::tests::FakeSkillElement;
using corvane::workbench::model::Attribute;
using corvane::workbench::model::Element;
using corvane::workbench::model::internal::ElementAccess;
using corvane::workbench::process::Event;
using corvane::workbench::process::EventSearchOptions;
using corvane::workbench::process::Task;
using ::testing::ElementsAre;
namespace skill = corvane::workbench::skill;

static_assert(std::is_same_v<decltype(ElementAccess::getSkillElement(std::declval<Element&>())),
                             skill::Element&>);
static_assert(std::is_same_v<decltype(ElementAccess::getSkillElement(std::declval<Element>())),
                             skill::Element&&>);
static_assert(
    std::is_same_v<decltype(ElementAccess::getSkillElement(std::declval<const Element&>())),
                   const skill::Element&>);
static_assert(
    std::is_same_v<decltype(ElementAccess::getSkillElement(std::declval<const Element>())),
                   const skill::Element&&>);

class ElementAccessToASkillElement : public ::testing::Test {
protected:
    FakeElement element;
    FakeElementClass elementClass;
    FakeSkillElement skillElement{element, elementClass};

    ElementAccessToASkillElement() { element.skillElement = &skillElement; }
};

TEST_F(ElementAccessToASkillElement, AllFormsGiveTheSkillElement) {
    Element& lvalue = element;
    EXPECT_EQ(&ElementAccess::getSkillElement(lvalue), &skillElement);
    EXPECT_EQ(&ElementAccess::getSkillElement(std::as_const(lvalue)), &skillElement);
    skill::Element&& moved = ElementAccess::getSkillElement(std::move(lvalue));
    EXPECT_EQ(&moved, &skillElement);
    const skill::Element&& constMoved =
        ElementAccess::getSkillElement(std::move(std::as_const(lvalue)));
    EXPECT_EQ(&constMoved, &skillElement);
    EXPECT_EQ(ElementAccess::getSkillElement(lvalue, std::nothrow), &skillElement);
    EXPECT_EQ(ElementAccess::getSkillElement(std::as_const(lvalue), std::nothrow), &skillElement);
}

TEST(ElementAccess, TheReferenceFormsThrowWithoutASkillElement) {
    FakeElement fake;
    Element& element = fake;
    EXPECT_THROW(static_cast<void>(ElementAccess::getSkillElement(element)), std::bad_cast);
    EXPECT_THROW(static_cast<void>(ElementAccess::getSkillElement(std::as_const(element))),
                 std::bad_cast);
    EXPECT_THROW(static_cast<void>(ElementAccess::getSkillElement(std::move(element))),
                 std::bad_cast);
    EXPECT_THROW(
        static_cast<void>(ElementAccess::getSkillElement(std::move(std::as_const(element)))),
        std::bad_cast);
}

TEST(ElementAccess, TheNothrowFormsGiveNullWithoutASkillElement) {
    FakeElement element;
    EXPECT_EQ(ElementAccess::getSkillElement(element, std::nothrow), nullptr);
    EXPECT_EQ(ElementAccess::getSkillElement(std::as_const(element), std::nothrow), nullptr);
}

TEST(ElementAccess, TheWalksOverAttributesAndTasksReturnWhetherTheyWereStopped) {
    FakeElement element;
    element.attributeList = {Attribute::kName};
    element.taskList = {Task::kReconnect};
    EXPECT_TRUE(ElementAccess::forEachAttribute(element, [](const Attribute&) { return true; }));
    EXPECT_FALSE(ElementAccess::forEachAttribute(element, [](const Attribute&) { return false; }));
    EXPECT_TRUE(ElementAccess::forEachTask(element, [](const Task&) { return true; }));
    EXPECT_FALSE(ElementAccess::forEachTask(element, [](const Task&) { return false; }));
}

TEST(ElementAccess, TheWalkOverEventsReturnsWhetherAnAttributeStoppedIt) {
    FakeElement element;
    element.attributeList = {Attribute::kQuality};
    element.eventList = {Event::kChanged};
    const EventSearchOptions withAttributes{.includeAttributes = true};
    const auto stopAtTheAttribute = [](const Event& event) { return event.name() == "quality"; };
    const auto stopAtTheEvent = [](const Event& event) { return event.name() == "changed"; };
    EXPECT_TRUE(ElementAccess::forEachEvent(element, stopAtTheAttribute, withAttributes));
    EXPECT_FALSE(ElementAccess::forEachEvent(element, stopAtTheAttribute, {}));
    element.calls.clear();
    EXPECT_FALSE(ElementAccess::forEachEvent(element, stopAtTheEvent, withAttributes));
    EXPECT_FALSE(ElementAccess::forEachEvent(element, stopAtTheEvent, {}));
    EXPECT_THAT(element.calls, ElementsAre("forEachEventImpl(false)", "forEachEventImpl(false)"));
}

} // namespace
