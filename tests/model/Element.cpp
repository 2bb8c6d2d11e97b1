#include <corvane/workbench/model/Element.hpp>

#include "FakeElement.hpp"
#include "FakeSkillElement.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace {

using corvane::tests::FakeElement;
using corvane::tests::FakeElementClass;
using corvane::tests::FakeSkillElement;
using corvane::utils::core::Uuid;
using corvane::workbench::data::DataType;
using corvane::workbench::io::Direction;
using corvane::workbench::model::Attribute;
using corvane::workbench::model::Element;
using corvane::workbench::model::ElementCategory;
using corvane::workbench::process::Event;
using corvane::workbench::process::EventSearchOptions;
using corvane::workbench::process::Task;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Categories = corvane::utils::core::Flags<ElementCategory>;
using Directions = corvane::utils::core::Flags<Direction>;
using Access = Attribute::Access;

static_assert(std::is_abstract_v<Element>);
static_assert(std::has_virtual_destructor_v<Element>);
static_assert(std::is_copy_assignable_v<Element>);
static_assert(sizeof(Element) == sizeof(void*), "an element has no data of its own");

constexpr EventSearchOptions kWithAttributes{.includeAttributes = true};
constexpr EventSearchOptions kForwarded{.forwardedFlag = true};
constexpr EventSearchOptions kBothOptions{.includeAttributes = true, .forwardedFlag = true};

FakeElement pump() {
    FakeElement element;
    element.elementName = "pump";
    element.key = "plant.pump";
    element.attributeList = {
        Attribute::kQuality,
        Attribute("speed", Access::ReadWrite, DataType{2, 4}, {Direction::Read, Direction::Write})};
    element.eventList = {Event::kChanged, Event("overheated", Direction::Write)};
    element.taskList = {Task::kReconnect, Task("stop")};
    return element;
}

FakeElement custom() {
    FakeElement element = pump();
    element.elementCategory = ElementCategory::CustomElement;
    return element;
}

// Plain forwards.

TEST(Element, NameAsksForTheName) {
    const FakeElement element = pump();
    EXPECT_EQ(element.name(), "pump");
    EXPECT_THAT(element.calls, ElementsAre("nameImpl"));
}

TEST(Element, PrimaryKeyAsksForThePrimaryKey) {
    const FakeElement element = pump();
    EXPECT_EQ(element.primaryKey(), "plant.pump");
    EXPECT_THAT(element.calls, ElementsAre("primaryKeyImpl"));
}

TEST(Element, UuidAsksForTheUuid) {
    FakeElement element;
    element.identifier = *Uuid::parse("01234567-89ab-cdef-0123-456789abcdef");
    EXPECT_EQ(element.uuid().toString(), "01234567-89ab-cdef-0123-456789abcdef");
    EXPECT_THAT(element.calls, ElementsAre("uuidImpl"));
}

TEST(Element, TypeAsksForTheType) {
    const FakeElement element;
    EXPECT_EQ(element.type(), L"Valve");
    EXPECT_THAT(element.calls, ElementsAre("typeImpl"));
}

TEST(Element, CategoryAsksForTheCategory) {
    const FakeElement element;
    EXPECT_EQ(element.category(), ElementCategory::Device);
    EXPECT_THAT(element.calls, ElementsAre("categoryImpl"));
}

TEST(Element, IsInvisibleRootAsksWhetherItIs) {
    FakeElement element;
    EXPECT_FALSE(element.isInvisibleRoot());
    element.invisibleRoot = true;
    EXPECT_TRUE(element.isInvisibleRoot());
    EXPECT_THAT(element.calls, ElementsAre("isInvisibleRootImpl", "isInvisibleRootImpl"));
}

TEST(Element, FindAncestorAsksForTheAncestorOfThatClass) {
    const FakeElement ancestor;
    FakeElement element;
    const FakeElementClass elementClass;
    EXPECT_EQ(element.findAncestor(elementClass), nullptr);
    element.ancestor = &ancestor;
    EXPECT_EQ(element.findAncestor(elementClass), &ancestor);
    EXPECT_EQ(element.askedClass, &elementClass);
    EXPECT_THAT(element.calls, ElementsAre("findAncestorImpl", "findAncestorImpl"));
}

TEST(Element, IsDescendentOfAsksAboutThatElement) {
    const FakeElement other;
    FakeElement element;
    EXPECT_FALSE(element.isDescendentOf(other));
    element.descendent = true;
    EXPECT_TRUE(element.isDescendentOf(other));
    EXPECT_EQ(element.askedElement, &other);
    EXPECT_THAT(element.calls, ElementsAre("isDescendentOfImpl", "isDescendentOfImpl"));
}

TEST(Element, ParentElementIsNullForTheRoot) {
    const FakeElement root;
    FakeElement element;
    element.parent = &root;
    EXPECT_EQ(root.parentElement(), nullptr);
    EXPECT_EQ(element.parentElement(), &root);
    EXPECT_THAT(element.calls, ElementsAre("parentElementImpl"));
}

TEST(Element, ChildElementsAsksForTheChildren) {
    const FakeElement child;
    FakeElement element;
    element.children.elements = {&child};
    EXPECT_EQ(&element.childElements().at(0), &child);
    EXPECT_THAT(element.calls, ElementsAre("childElementsImpl"));
}

TEST(Element, ChildElementAsksForTheChildOfThatName) {
    const FakeElement child = pump();
    FakeElement element;
    element.children.elements = {&child};
    EXPECT_EQ(element.childElement("pump"), &child);
    EXPECT_EQ(element.childElement("Pump"), nullptr);
    EXPECT_THAT(element.calls, ElementsAre("childElementImpl(pump)", "childElementImpl(Pump)"));
}

// All members.

TEST(Element, AttributesAreInTheOrderOfTheElement) {
    const FakeElement element = pump();
    const std::vector<Attribute> attributes = element.attributes();
    ASSERT_EQ(attributes.size(), 2u);
    EXPECT_EQ(attributes[0], Attribute::kQuality);
    EXPECT_EQ(attributes[1].name(), "speed");
    EXPECT_THAT(element.calls, ElementsAre("forEachAttributeImpl"));
}

TEST(Element, TasksAreInTheOrderOfTheElement) {
    const FakeElement element = pump();
    EXPECT_THAT(element.tasks(), ElementsAre(Task("reconnect"), Task("stop")));
    EXPECT_THAT(element.calls, ElementsAre("forEachTaskImpl"));
}

TEST(Element, EventsWithoutAttributesAreTheEventsOnly) {
    const FakeElement element = pump();
    EXPECT_THAT(
        element.events(EventSearchOptions()),
        ElementsAre(Event("changed", Direction::Read), Event("overheated", Direction::Write)));
    EXPECT_THAT(element.calls, ElementsAre("forEachEventImpl(false)"));
}

TEST(Element, EventsWithAttributesListsRealEventsBeforeTheChangeEventsOfAttributes) {
    const FakeElement element = pump();
    EXPECT_THAT(element.events(kWithAttributes),
                ElementsAre(Event("changed", Direction::Read),
                            Event("overheated", Direction::Write),
                            Event("quality", Direction::Read),
                            Event("speed", {Direction::Read, Direction::Write})));
    EXPECT_THAT(element.calls, ElementsAre("forEachEventImpl(false)", "forEachAttributeImpl"));
}

TEST(Element, AnEventAndAnAttributeOfTheSameNameBothAppearAmongTheEvents) {
    FakeElement element;
    element.attributeList = {Attribute::kQuality};
    element.eventList = {Event("quality", Direction::Write)};
    EXPECT_THAT(element.events(kWithAttributes),
                ElementsAre(Event("quality", Direction::Write), Event("quality", Direction::Read)));
}

TEST(Element, TheForwardedFlagReachesTheWalkOverTheEventsUnchanged) {
    const FakeElement element = pump();
    static_cast<void>(element.events(kForwarded));
    static_cast<void>(element.event("changed", kForwarded));
    element.forEachEvent([](const Event&) {}, kForwarded);
    EXPECT_THAT(element.calls, ElementsAre("forEachEventImpl(true)", "forEachEventImpl(true)",
                                           "forEachEventImpl(true)"));
}

// Walks.

TEST(Element, AWalkWithAVisitorThatReturnsNothingSeesAllMembers) {
    const FakeElement element = pump();
    std::vector<std::string> names;
    EXPECT_FALSE(element.forEachAttribute(
        [&](const Attribute& attribute) { names.emplace_back(attribute.name()); }));
    EXPECT_FALSE(
        element.forEachEvent([&](const Event& event) { names.emplace_back(event.name()); }));
    EXPECT_FALSE(element.forEachTask([&](const Task& task) { names.emplace_back(task.name()); }));
    EXPECT_THAT(names,
                ElementsAre("quality", "speed", "changed", "overheated", "reconnect", "stop"));
}

TEST(Element, AWalkStopsWhenTheVisitorReturnsTrueAndReturnsTrue) {
    const FakeElement element = pump();
    int visits = 0;
    EXPECT_TRUE(element.forEachAttribute([&](const Attribute&) { return ++visits == 1; }));
    EXPECT_EQ(visits, 1);
    EXPECT_TRUE(element.forEachTask([&](const Task&) { return ++visits == 2; }));
    EXPECT_EQ(visits, 2);
    EXPECT_TRUE(element.forEachEvent([&](const Event&) { return ++visits == 3; }));
    EXPECT_EQ(visits, 3);
}

TEST(Element, AWalkThatWasNotStoppedReturnsFalse) {
    const FakeElement element = pump();
    EXPECT_FALSE(element.forEachAttribute([](const Attribute&) { return false; }));
    EXPECT_FALSE(element.forEachTask([](const Task&) { return false; }));
    EXPECT_FALSE(element.forEachEvent([](const Event&) { return false; }, kWithAttributes));
}

TEST(Element, AnEventThatStopsTheWalkKeepsItFromTheAttributes) {
    const FakeElement element = pump();
    EXPECT_TRUE(element.forEachEvent([](const Event&) { return true; }, kBothOptions));
    EXPECT_THAT(element.calls, ElementsAre("forEachEventImpl(true)"));
}

TEST(Element, AChangeEventCanStopTheWalkOverTheEvents) {
    const FakeElement element = pump();
    std::vector<std::string> names;
    EXPECT_TRUE(element.forEachEvent(
        [&](const Event& event) {
            names.emplace_back(event.name());
            return event.name() == "quality";
        },
        kWithAttributes));
    EXPECT_THAT(names, ElementsAre("changed", "overheated", "quality"));
}

TEST(Element, AWalkOverTheEventsGivesTheChangeEventsThemselvesAndNoCopies) {
    const FakeElement element = pump();
    const Event* last = nullptr;
    element.forEachEvent([&](const Event& event) { last = &event; }, kWithAttributes);
    EXPECT_EQ(last, &element.attributeList.back().changeEvent());
}

TEST(Element, AVisitorThatThrowsEndsTheWalk) {
    const FakeElement element = pump();
    int visits = 0;
    EXPECT_THROW(element.forEachTask([&](const Task&) {
        ++visits;
        throw std::runtime_error("no");
    }),
                 std::runtime_error);
    EXPECT_EQ(visits, 1);
}

// Lookups.

TEST(Element, AnAttributeIsFoundByItsName) {
    const FakeElement element = pump();
    const auto attribute = element.attribute("speed");
    ASSERT_TRUE(attribute.has_value());
    EXPECT_EQ(*attribute, element.attributeList[1]);
    EXPECT_THAT(element.calls, ElementsAre("forEachAttributeImpl"));
}

TEST(Element, TheFirstOfSeveralMembersOfTheSameNameWins) {
    FakeElement element;
    element.attributeList = {Attribute("a", Access::ReadOnly, {}, {}),
                             Attribute("a", Access::WriteOnly, {}, {})};
    element.eventList = {Event("a", Direction::Write), Event("a", Direction::Read)};
    element.taskList = {Task("a"), Task("a")};
    EXPECT_EQ(element.attribute("a")->access(), Access::ReadOnly);
    EXPECT_EQ(element.event("a")->ioDirections(), Directions(Direction::Write));
    EXPECT_EQ(element.task("a")->name(), "a");
}

TEST(Element, AMissingAttributeIsExplainedInWords) {
    const FakeElement element = pump();
    const auto attribute = element.attribute("Speed");
    ASSERT_FALSE(attribute.has_value());
    EXPECT_EQ(attribute.error(), L"the element \u201Cplant.pump\u201D does not have an attribute "
                                 L"named \u201CSpeed\u201D");
    EXPECT_THAT(element.calls,
                ElementsAre("forEachAttributeImpl", "categoryImpl", "primaryKeyImpl"));
}

TEST(Element, KeyAndNameInAMessageAreConvertedFromUtf8) {
    FakeElement element;
    element.key = "Stra\xC3\x9F"
                  "e.{}";
    EXPECT_EQ(element.attribute("\xC3\xBC{0}").error(),
              L"the element \u201CStra\u00DFe.{}\u201D does not have an attribute named "
              L"\u201C\u00FC{0}\u201D");
}

TEST(Element, AnEventIsFoundByItsName) {
    const FakeElement element = pump();
    EXPECT_EQ(element.event("overheated", EventSearchOptions()),
              Event("overheated", Direction::Write));
    EXPECT_THAT(element.calls, ElementsAre("forEachEventImpl(false)"));
}

TEST(Element, AnEventWinsOverAnAttributeOfTheSameName) {
    FakeElement element;
    element.attributeList = {Attribute::kQuality};
    element.eventList = {Event("quality", Direction::Write)};
    EXPECT_EQ(element.event("quality", kWithAttributes), Event("quality", Direction::Write));
    EXPECT_THAT(element.calls, ElementsAre("forEachEventImpl(false)"));
}

TEST(Element, WithAttributesTheChangeEventOfAnAttributeIsFound) {
    const FakeElement element = pump();
    EXPECT_EQ(element.event("quality", kWithAttributes), Event("quality", Direction::Read));
    EXPECT_THAT(element.calls, ElementsAre("forEachEventImpl(false)", "forEachAttributeImpl"));
}

TEST(Element, WithoutAttributesTheChangeEventOfAnAttributeIsNotFound) {
    const FakeElement element = pump();
    const auto event = element.event("quality", EventSearchOptions());
    ASSERT_FALSE(event.has_value());
    EXPECT_EQ(
        event.error(),
        L"the element \u201Cplant.pump\u201D does not have an event named \u201Cquality\u201D");
    EXPECT_THAT(element.calls,
                ElementsAre("forEachEventImpl(false)", "categoryImpl", "primaryKeyImpl"));
}

TEST(Element, AMissingEventIsExplainedWithAttributesWhenTheyCount) {
    const FakeElement element = pump();
    const auto event = element.event("frozen", kBothOptions);
    ASSERT_FALSE(event.has_value());
    EXPECT_EQ(event.error(), L"the element \u201Cplant.pump\u201D does not have an event or "
                             L"attribute named \u201Cfrozen\u201D");
    EXPECT_THAT(element.calls, ElementsAre("forEachEventImpl(true)", "forEachAttributeImpl",
                                           "categoryImpl", "primaryKeyImpl"));
}

TEST(Element, ATaskIsFoundByItsName) {
    const FakeElement element = pump();
    EXPECT_EQ(element.task("stop"), Task("stop"));
    EXPECT_THAT(element.calls, ElementsAre("forEachTaskImpl"));
}

TEST(Element, AMissingTaskIsExplainedInWords) {
    const FakeElement element = pump();
    const auto task = element.task("start");
    ASSERT_FALSE(task.has_value());
    EXPECT_EQ(task.error(),
              L"the element \u201Cplant.pump\u201D does not have a task named \u201Cstart\u201D");
    EXPECT_THAT(element.calls, ElementsAre("forEachTaskImpl", "categoryImpl", "primaryKeyImpl"));
}

TEST(Element, AnEmptyNameIsLookedUpLikeAnyOther) {
    const FakeElement element = pump();
    EXPECT_EQ(element.attribute("").error(), L"the element \u201Cplant.pump\u201D does not have an "
                                             L"attribute named \u201C\u201D");
}

// Custom elements.

TEST(Element, ACustomElementHasEveryAttribute) {
    const FakeElement element = custom();
    const auto attribute = element.attribute("anything");
    ASSERT_TRUE(attribute.has_value());
    EXPECT_EQ(attribute->name(), "anything");
    EXPECT_EQ(attribute->ioDirections().bits(), 3u);
    EXPECT_EQ(static_cast<int>(attribute->access()), 2);
    EXPECT_EQ(attribute->dataType(), (DataType{11, 0}));
    EXPECT_THAT(element.calls, ElementsAre("forEachAttributeImpl", "categoryImpl"));
}

TEST(Element, ACustomElementHasEveryEvent) {
    const FakeElement element = custom();
    EXPECT_EQ(element.event("anything", EventSearchOptions()),
              Event("anything", Directions::fromBits(3)));
    EXPECT_EQ(element.event("anything", kWithAttributes),
              Event("anything", Directions::fromBits(3)));
    EXPECT_THAT(element.calls,
                ElementsAre("forEachEventImpl(false)", "categoryImpl", "forEachEventImpl(false)",
                            "forEachAttributeImpl", "categoryImpl"));
}

TEST(Element, ACustomElementHasEveryTask) {
    const FakeElement element = custom();
    EXPECT_EQ(element.task("anything"), Task("anything"));
    EXPECT_THAT(element.calls, ElementsAre("forEachTaskImpl", "categoryImpl"));
}

TEST(Element, TheMembersThatACustomElementReallyHasWin) {
    const FakeElement element = custom();
    EXPECT_EQ(*element.attribute("quality"), Attribute::kQuality);
    EXPECT_EQ(*element.event("changed"), Event::kChanged);
    EXPECT_EQ(*element.event("quality", kWithAttributes), Event("quality", Direction::Read));
    EXPECT_EQ(*element.event("quality"), Event("quality", Directions::fromBits(3)));
}

TEST(Element, ACustomElementListsOnlyTheMembersThatItReallyHas) {
    FakeElement element;
    element.elementCategory = ElementCategory::CustomElement;
    EXPECT_THAT(element.attributes(), IsEmpty());
    EXPECT_THAT(element.events(kWithAttributes), IsEmpty());
    EXPECT_THAT(element.tasks(), IsEmpty());
}

// Categories.

TEST(Element, CheckCategoryTellsWhetherTheCategoryIsInTheSet) {
    const FakeElement element;
    EXPECT_TRUE(element.checkCategory({ElementCategory::Device, ElementCategory::Timer}));
    EXPECT_FALSE(element.checkCategory({ElementCategory::SubDevice, ElementCategory::Timer}));
    EXPECT_FALSE(element.checkCategory(Categories()));
}

TEST(Element, ACustomElementPassesEveryCategoryCheckEvenTheEmptyOne) {
    const FakeElement element = custom();
    EXPECT_TRUE(element.checkCategory(Categories()));
    EXPECT_TRUE(element.checkCategory(ElementCategory::Timer));
}

TEST(Element, CheckCategoryThrowsForACategoryThatIsNoEnumerator) {
    FakeElement element;
    for (const int value : {17, 40, -1}) {
        element.elementCategory = ElementCategory(value);
        try {
            static_cast<void>(element.checkCategory(Categories::fromBits(0x1FFFF)));
            ADD_FAILURE() << value;
        } catch (const std::out_of_range& error) {
            EXPECT_STREQ(error.what(), "invalid bitset position");
        }
        EXPECT_THROW(static_cast<void>(element.isDataPoint()), std::out_of_range);
    }
}

TEST(Element, DataPointsAndCustomElementsAreDataPoints) {
    FakeElement element;
    EXPECT_FALSE(element.isDataPoint());
    element.elementCategory = ElementCategory::DataPoint;
    EXPECT_TRUE(element.isDataPoint());
    element.elementCategory = ElementCategory::DataPointGroup;
    EXPECT_FALSE(element.isDataPoint());
    element.elementCategory = ElementCategory::CustomElement;
    EXPECT_TRUE(element.isDataPoint());
}

TEST(Element, ACustomElementIsASkillDataPointWithoutASkillElement) {
    const FakeElement element = custom();
    EXPECT_TRUE(element.isSkillDataPoint());
    EXPECT_THAT(element.calls, ElementsAre("categoryImpl"));
}

TEST(Element, ADataPointIsASkillDataPointOnlyWithASkillElement) {
    FakeElement element;
    element.elementCategory = ElementCategory::DataPoint;
    EXPECT_FALSE(element.isSkillDataPoint());
    const FakeElementClass elementClass;
    FakeSkillElement skillElement(element, elementClass);
    element.skillElement = &skillElement;
    EXPECT_TRUE(element.isSkillDataPoint());
}

TEST(Element, AnElementOfAnotherCategoryIsNoSkillDataPoint) {
    FakeElement element;
    const FakeElementClass elementClass;
    FakeSkillElement skillElement(element, elementClass);
    element.skillElement = &skillElement;
    EXPECT_FALSE(element.isSkillDataPoint());
}

TEST(Element, IsSkillDataPointDoesNotThrowForACategoryThatIsNoEnumerator) {
    FakeElement element;
    for (const int value : {17, -1}) {
        element.elementCategory = ElementCategory(value);
        EXPECT_FALSE(element.isSkillDataPoint());
    }
}

TEST(Element, AnElementIsOfTheClassOfItsSkillElement) {
    FakeElement element;
    const FakeElementClass elementClass;
    FakeSkillElement skillElement(element, elementClass);
    element.skillElement = &skillElement;
    EXPECT_TRUE(element.isA(elementClass));
}

TEST(Element, AnElementIsNotOfAClassThatIsEqualButNotTheSameObject) {
    FakeElement element;
    const FakeElementClass elementClass;
    const FakeElementClass equalClass;
    FakeSkillElement skillElement(element, elementClass);
    element.skillElement = &skillElement;
    EXPECT_FALSE(element.isA(equalClass));
}

TEST(Element, AnElementWithoutASkillElementIsOfNoClass) {
    const FakeElement element = custom();
    EXPECT_FALSE(element.isA(FakeElementClass()));
}

} // namespace
