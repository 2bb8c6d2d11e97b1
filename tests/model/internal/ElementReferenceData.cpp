#include <corvane/workbench/model/internal/ElementReferenceData.hpp>

#include "../FakeElement.hpp"
#include "RecordingProxy.hpp"
#include "everyShortText.hpp"
#include "savedText.hpp"
#include <corvane/workbench/process/EventSearchOptions.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <regex>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using corvane::tests::FakeElement;
using corvane::tests::RecordingProxy;
using corvane::tests::savedArray;
using corvane::tests::savedObject;
using corvane::tests::savedText;
using corvane::workbench::model::Attribute;
using corvane::workbench::model::ElementCategory;
using corvane::workbench::model::internal::AbstractCrossReferenceProxy;
using corvane::workbench::model::internal::ElementReferenceData;
using corvane::workbench::process::Event;
using corvane::workbench::process::EventSearchOptions;
using corvane::workbench::process::Task;
using ::testing::Eq;
using ::testing::IsEmpty;
using ::testing::Optional;

static_assert(std::is_nothrow_move_constructible_v<ElementReferenceData>);
static_assert(std::is_nothrow_move_assignable_v<ElementReferenceData>);

class ElementReferenceDataTest : public ::testing::Test {
protected:
    ElementReferenceDataTest() {
        root.invisibleRoot = true;
        root.key = "";
        root.elementCategory = ElementCategory::RootElement;
        plant.key = "plant";
        custom.key = "custom";
        custom.elementCategory = ElementCategory::CustomElement;
    }

    ElementReferenceData below(const std::shared_ptr<RecordingProxy>& proxy, std::string suffix,
                               std::optional<std::string> member = std::nullopt) const {
        return {proxy, std::move(suffix), std::move(member)};
    }

    std::vector<std::string> calls;
    FakeElement root;
    FakeElement plant;
    FakeElement custom;
    std::shared_ptr<RecordingProxy> rootProxy = std::make_shared<RecordingProxy>("", calls, &root);
    std::shared_ptr<RecordingProxy> plantProxy =
        std::make_shared<RecordingProxy>("plant", calls, &plant);
    std::shared_ptr<RecordingProxy> customProxy =
        std::make_shared<RecordingProxy>("custom", calls, &custom);
    std::shared_ptr<RecordingProxy> gone = std::make_shared<RecordingProxy>("gone", calls);
};

// The value itself.

TEST_F(ElementReferenceDataTest, ADefaultOneIsEmpty) {
    const ElementReferenceData data;
    EXPECT_TRUE(data.empty());
    EXPECT_FALSE(data.isImportReference());
    EXPECT_EQ(data.proxy(), nullptr);
    EXPECT_EQ(data.suffix(), "");
    EXPECT_EQ(data.memberName(), std::nullopt);
    EXPECT_EQ(data.primaryKey(), "");
    EXPECT_EQ(savedText(data), R"("")");
}

TEST_F(ElementReferenceDataTest, AProxyOrAMemberNameMakesItNotEmptyButASuffixDoesNot) {
    EXPECT_FALSE(below(plantProxy, "").empty());
    EXPECT_FALSE(ElementReferenceData(nullptr, "", "speed").empty());
    EXPECT_FALSE(ElementReferenceData(nullptr, "", "").empty());
    EXPECT_TRUE(ElementReferenceData(nullptr, ".pump").empty());
}

TEST_F(ElementReferenceDataTest, EachFieldCanBeReplaced) {
    ElementReferenceData data;
    data.setProxy(plantProxy);
    data.setSuffix(".pump");
    data.setMemberName("speed");
    EXPECT_EQ(data.proxy(), plantProxy);
    EXPECT_EQ(data.suffix(), ".pump");
    EXPECT_THAT(data.memberName(), Optional(Eq("speed")));
    data.setMemberName(std::nullopt);
    EXPECT_EQ(data.memberName(), std::nullopt);
    EXPECT_EQ(data.suffix(), ".pump");
}

TEST_F(ElementReferenceDataTest, CopiesAndMovesCarryEveryField) {
    const ElementReferenceData source = below(plantProxy, ".pump", "speed");
    ElementReferenceData copy = source;
    EXPECT_EQ(copy.primaryKey(), "plant.pump.speed");
    const ElementReferenceData moved = std::move(copy);
    EXPECT_EQ(moved.primaryKey(), "plant.pump.speed");
    ElementReferenceData assigned;
    assigned = source;
    EXPECT_EQ(assigned.primaryKey(), "plant.pump.speed");
    ElementReferenceData moveAssigned;
    moveAssigned = std::move(assigned);
    EXPECT_EQ(moveAssigned.primaryKey(), "plant.pump.speed");
    EXPECT_EQ(source.primaryKey(), "plant.pump.speed");
}

TEST_F(ElementReferenceDataTest, ItRegistersNothing) {
    {
        const ElementReferenceData data = below(plantProxy, "");
        const ElementReferenceData copy = data;
        EXPECT_FALSE(copy.empty());
    }
    EXPECT_THAT(calls, IsEmpty());
}

// Keys.

TEST_F(ElementReferenceDataTest, ThePrimaryKeyIsTheProxysKeyTheSuffixAndTheMember) {
    EXPECT_EQ(below(plantProxy, "").primaryKey(), "plant");
    EXPECT_EQ(below(plantProxy, ".pump").primaryKey(), "plant.pump");
    EXPECT_EQ(below(plantProxy, "", "speed").primaryKey(), "plant.speed");
    EXPECT_EQ(below(plantProxy, ".pump", "speed").primaryKey(), "plant.pump.speed");
    EXPECT_EQ(below(rootProxy, "pump", "speed").primaryKey(), "pump.speed");
    EXPECT_EQ(below(plantProxy, "", "").primaryKey(), "plant.");
}

TEST_F(ElementReferenceDataTest, ThePrimaryKeyFollowsARenameOfTheElement) {
    const ElementReferenceData data = below(plantProxy, ".pump");
    plantProxy->rename("site");
    EXPECT_EQ(data.primaryKey(), "site.pump");
}

TEST_F(ElementReferenceDataTest, WithoutAProxyThePrimaryKeyIsEmptyButSavingWritesSuffixAndMember) {
    const ElementReferenceData data(nullptr, ".pump", "speed");
    EXPECT_FALSE(data.empty());
    EXPECT_EQ(data.primaryKey(), "");
    EXPECT_EQ(savedText(data), R"(".pump.speed")");
    EXPECT_EQ(data.attribute().error(), L"empty element key");
}

TEST_F(ElementReferenceDataTest, ItSavesThroughItsProxyAsOneString) {
    EXPECT_EQ(savedText(below(plantProxy, "")), R"("plant")");
    EXPECT_EQ(savedText(below(plantProxy, ".pump", "speed")), R"("plant.pump.speed")");
}

TEST_F(ElementReferenceDataTest, ItSavesIntoAnArrayAndIntoAMember) {
    const ElementReferenceData data = below(plantProxy, ".pump");
    EXPECT_EQ(savedArray(data), R"(["plant.pump"])");
    EXPECT_EQ(savedObject(data, "source"), R"({"source":"plant.pump"})");
}

TEST_F(ElementReferenceDataTest, WriteKeyJoinsPrefixKeyAndMember) {
    using corvane::tests::written;
    using corvane::utils::json::encoder::Value;
    EXPECT_EQ(written([](Value& value) {
                  AbstractCrossReferenceProxy::writeKey(value, "", "", std::nullopt);
              }),
              R"("")");
    EXPECT_EQ(written([](Value& value) {
                  AbstractCrossReferenceProxy::writeKey(value, "@", "a.b", std::nullopt);
              }),
              R"("@a.b")");
    EXPECT_EQ(written([](Value& value) {
                  AbstractCrossReferenceProxy::writeKey(value, "@", "a.{}", "[x.y]");
              }),
              R"("@a.{}.[x.y]")");
    EXPECT_EQ(
        written([](Value& value) { AbstractCrossReferenceProxy::writeKey(value, "", "a", ""); }),
        R"("a.")");
}

// References from an import.

TEST_F(ElementReferenceDataTest, AnImportReferenceHoldsItsKeyAsText) {
    const ElementReferenceData data = ElementReferenceData::makeImportReference("a.b", "x");
    EXPECT_TRUE(data.isImportReference());
    EXPECT_FALSE(data.empty());
    EXPECT_EQ(data.suffix(), "a.b");
    EXPECT_THAT(data.memberName(), Optional(Eq("x")));
    EXPECT_EQ(data.primaryKey(), "a.b.x");
    EXPECT_EQ(savedText(data), R"(".import:a.b.x")");
    EXPECT_EQ(data.element().error(), L"internal error: unresolved cross reference from import");
    EXPECT_EQ(data.attribute().error(), L"internal error: unresolved cross reference from import");
}

TEST_F(ElementReferenceDataTest, AnImportReferenceToAnElementHasNoMember) {
    const ElementReferenceData data = ElementReferenceData::makeImportReference("a.b");
    EXPECT_TRUE(data.isImportReference());
    EXPECT_EQ(data.memberName(), std::nullopt);
    EXPECT_EQ(data.primaryKey(), "a.b");
    EXPECT_EQ(savedText(data), R"(".import:a.b")");
}

TEST_F(ElementReferenceDataTest, AllImportReferencesShareOneProxy) {
    const ElementReferenceData first = ElementReferenceData::makeImportReference("a");
    const ElementReferenceData second = ElementReferenceData::makeImportReference("b", "x");
    EXPECT_EQ(first.proxy(), second.proxy());
    EXPECT_FALSE(below(plantProxy, "").isImportReference());
}

TEST_F(ElementReferenceDataTest, TheImportProxyStandsForNoElementAndCountsNothing) {
    const auto proxy = ElementReferenceData::makeImportReference("a").proxy();
    EXPECT_EQ(proxy->primaryKey(), "");
    EXPECT_EQ(proxy->referenceCount(), 0U);
    EXPECT_EQ(proxy->element().error(), L"internal error: unresolved cross reference from import");
    proxy->detach(nullptr);
}

TEST_F(ElementReferenceDataTest, AnImportKeyIsRecognisedByItsPrefix) {
    EXPECT_THAT(ElementReferenceData::parseImportReference(".import:a.b"), Optional(Eq("a.b")));
    EXPECT_THAT(ElementReferenceData::parseImportReference(".import:"), Optional(Eq("")));
    EXPECT_THAT(ElementReferenceData::parseImportReference(".import:.import:a"),
                Optional(Eq(".import:a")));
    EXPECT_EQ(ElementReferenceData::parseImportReference(".import"), std::nullopt);
    EXPECT_EQ(ElementReferenceData::parseImportReference("import:a.b.c"), std::nullopt);
    EXPECT_EQ(ElementReferenceData::parseImportReference("a.import:b"), std::nullopt);
    EXPECT_EQ(ElementReferenceData::parseImportReference(".Import:b"), std::nullopt);
    EXPECT_EQ(ElementReferenceData::parseImportReference(""), std::nullopt);
}

TEST_F(ElementReferenceDataTest, WhatAnImportReferenceSavesIsReadBackAsItsKey) {
    const std::string_view saved = ".import:a.[b.c].x";
    const auto key = ElementReferenceData::parseImportReference(saved);
    ASSERT_TRUE(key.has_value());
    EXPECT_EQ(key->data(), saved.data() + 8);
    EXPECT_EQ(savedText(ElementReferenceData::makeImportReference(*key)), R"(".import:a.[b.c].x")");
}

// Elements.

TEST_F(ElementReferenceDataTest, WithoutASuffixItResolvesToTheProxysElement) {
    EXPECT_EQ(&below(plantProxy, "").element()->get(), &plant);
    EXPECT_EQ(&below(rootProxy, "").element()->get(), &root);
}

TEST_F(ElementReferenceDataTest, WithoutAProxyTheElementKeyIsEmpty) {
    EXPECT_EQ(ElementReferenceData().element().error(), L"empty element key");
}

TEST_F(ElementReferenceDataTest, AFailingProxyExplainsItself) {
    EXPECT_EQ(below(gone, "").element().error(), L"no element");
    EXPECT_EQ(below(gone, ".pump").element().error(), L"no element");
}

TEST_F(ElementReferenceDataTest, AMissingTopLevelElementIsNamed) {
    EXPECT_EQ(below(rootProxy, "pump.valve").element().error(),
              L"the element “pump” does not exist");
    EXPECT_EQ(below(rootProxy, "[a.b].c").element().error(), L"the element “[a.b]” does not exist");
}

TEST_F(ElementReferenceDataTest, AMissingChildIsNamedWithItsParent) {
    EXPECT_EQ(below(plantProxy, ".pump").element().error(),
              L"the element “plant” does not have a child named “pump”");
    EXPECT_EQ(below(plantProxy, ".[a.b].valve").element().error(),
              L"the element “plant” does not have a child named “[a.b]”");
}

TEST_F(ElementReferenceDataTest, NamesInMessagesAreConvertedToWideText) {
    FakeElement tank;
    tank.key = "Beh\xc3\xa4lter";
    const auto proxy = std::make_shared<RecordingProxy>("Beh\xc3\xa4lter", calls, &tank);
    EXPECT_EQ(below(proxy, ".F\xc3\xbcllstand").element().error(),
              L"the element “Beh\u00e4lter” does not have a child named “F\u00fcllstand”");
}

TEST_F(ElementReferenceDataTest, BracesInNamesAreNoPlaceholders) {
    EXPECT_EQ(below(rootProxy, "{}{0}").element().error(), L"the element “{}{0}” does not exist");
}

TEST_F(ElementReferenceDataTest, AKeyBelowACustomElementResolvesToTheCustomElement) {
    EXPECT_EQ(&below(customProxy, ".any.thing").element()->get(), &custom);
    EXPECT_EQ(&below(customProxy, ".[").element()->get(), &custom);
}

TEST_F(ElementReferenceDataTest, ACustomElementThatIsTheRootResolvesToo) {
    custom.invisibleRoot = true;
    EXPECT_EQ(&below(customProxy, "any").element()->get(), &custom);
}

struct MalformedSuffix {
    std::string_view suffix;
    bool topLevel;
    std::wstring_view message;
};

class MalformedSuffixTest : public ElementReferenceDataTest,
                            public ::testing::WithParamInterface<MalformedSuffix> {};

TEST_P(MalformedSuffixTest, IsRefusedWithItsMessage) {
    const MalformedSuffix& param = GetParam();
    const ElementReferenceData data =
        below(param.topLevel ? rootProxy : plantProxy, std::string(param.suffix));
    EXPECT_EQ(data.element().error(), param.message);
    EXPECT_EQ(data.suffix(), param.suffix);
}

INSTANTIATE_TEST_SUITE_P(
    AllChecks, MalformedSuffixTest,
    ::testing::Values(
        // The one leading dot belongs to a child's suffix, not to a top-level one.
        MalformedSuffix{".a.b", false, L"the element “plant” does not have a child named “a”"},
        MalformedSuffix{"a.b", false, L"the element “plant” does not have a child named “a”"},
        MalformedSuffix{".", false, L"empty child element name"},
        MalformedSuffix{"..a", false, L"empty child element name"},
        MalformedSuffix{".a", true, L"empty top level element name"},
        MalformedSuffix{".", true, L"empty top level element name"},
        MalformedSuffix{"a.b", true, L"the element “a” does not exist"},
        MalformedSuffix{"[ab", true, L"“[” without “]” in key component"},
        MalformedSuffix{".[ab.c", false, L"“[” without “]” in key component"},
        MalformedSuffix{".[", false, L"“[” without “]” in key component"},
        MalformedSuffix{"[a.b]c", true, L"closing “]” must be at the end of the key component"},
        MalformedSuffix{".[a]b].c", false, L"closing “]” must be at the end of the key component"},
        MalformedSuffix{"[]c", true, L"closing “]” must be at the end of the key component"},
        MalformedSuffix{"[]", true, L"an empty set of “[]” is not a valid key component"},
        MalformedSuffix{"[].x", true, L"an empty set of “[]” is not a valid key component"},
        MalformedSuffix{".[]", false, L"an empty set of “[]” is not a valid key component"},
        MalformedSuffix{"[.]", true, L"the element “[.]” does not exist"},
        MalformedSuffix{"a]b[", true, L"the element “a]b[” does not exist"},
        MalformedSuffix{".[a.b].c", false,
                        L"the element “plant” does not have a child named “[a.b]”"}));

TEST_F(ElementReferenceDataTest, AKeyOfAMegabyteIsExplainedLikeAnyOther) {
    const std::string name(1'000'000, 'x');
    EXPECT_EQ(below(rootProxy, name + ".y").element().error(),
              L"the element “" + std::wstring(1'000'000, L'x') + L"” does not exist");
    EXPECT_EQ(below(rootProxy, "[" + name).element().error(), L"“[” without “]” in key component");
}

// Members.

TEST_F(ElementReferenceDataTest, MembersAreLookedUpOnTheElement) {
    plant.attributeList.push_back(Attribute::kQuality);
    plant.eventList.push_back(Event::kConnected);
    plant.taskList.push_back(Task::kReconnect);
    EXPECT_EQ(below(plantProxy, "", "quality").attribute()->name(), "quality");
    EXPECT_EQ(below(plantProxy, "", "connected").event({})->name(), "connected");
    EXPECT_EQ(below(plantProxy, "", "reconnect").task()->name(), "reconnect");
}

TEST_F(ElementReferenceDataTest, AnEventIsLookedUpWithTheGivenOptions) {
    plant.attributeList.push_back(Attribute::kQuality);
    const ElementReferenceData data = below(plantProxy, "", "quality");
    EXPECT_EQ(data.event(EventSearchOptions{true, false})->name(), "quality");
    EXPECT_EQ(data.event(EventSearchOptions{false, false}).error(),
              L"the element “plant” does not have an event named “quality”");
}

TEST_F(ElementReferenceDataTest, AMissingMemberIsReportedByTheElement) {
    const ElementReferenceData data = below(plantProxy, "", "speed");
    EXPECT_EQ(data.attribute().error(),
              L"the element “plant” does not have an attribute named “speed”");
    EXPECT_EQ(data.event({}).error(), L"the element “plant” does not have an event named “speed”");
    EXPECT_EQ(data.event(EventSearchOptions{true, false}).error(),
              L"the element “plant” does not have an event or attribute named “speed”");
    EXPECT_EQ(data.task().error(), L"the element “plant” does not have a task named “speed”");
}

TEST_F(ElementReferenceDataTest, AnEmptyReferenceHasAnEmptyMemberKey) {
    const ElementReferenceData data;
    EXPECT_EQ(data.attribute().error(), L"empty attribute key");
    EXPECT_EQ(data.event({}).error(), L"empty event key");
    EXPECT_EQ(data.task().error(), L"empty task key");
}

TEST_F(ElementReferenceDataTest, AMemberNameWithoutAProxyHasAnEmptyElementKey) {
    const ElementReferenceData data(nullptr, "", "speed");
    EXPECT_EQ(data.attribute().error(), L"empty element key");
    EXPECT_EQ(data.event({}).error(), L"empty element key");
    EXPECT_EQ(data.task().error(), L"empty element key");
}

TEST_F(ElementReferenceDataTest, AnElementThatDoesNotResolveIsReportedBeforeItsMember) {
    const ElementReferenceData data = below(plantProxy, ".pump", "");
    EXPECT_EQ(data.attribute().error(), L"the element “plant” does not have a child named “pump”");
    EXPECT_EQ(data.event({}).error(), L"the element “plant” does not have a child named “pump”");
    EXPECT_EQ(data.task().error(), L"the element “plant” does not have a child named “pump”");
}

TEST_F(ElementReferenceDataTest, AReferenceToAnElementLacksTheMembersName) {
    const ElementReferenceData data = below(plantProxy, "");
    EXPECT_EQ(data.attribute().error(), L"missing attribute name");
    EXPECT_EQ(data.event({}).error(), L"missing event name");
    EXPECT_EQ(data.task().error(), L"missing task name");
}

TEST_F(ElementReferenceDataTest, TheNameOfAChildIsNoMemberName) {
    FakeElement pump;
    pump.elementName = "pump";
    plant.children.elements = {&pump};
    const ElementReferenceData data = below(plantProxy, "", "pump");
    EXPECT_EQ(data.attribute().error(), L"missing attribute name");
    EXPECT_EQ(data.event({}).error(), L"missing event name");
    EXPECT_EQ(data.event(EventSearchOptions{true, false}).error(), L"missing event name");
    EXPECT_EQ(data.task().error(), L"missing task name");
}

TEST_F(ElementReferenceDataTest, AMemberGoesBeforeAChildOfTheSameName) {
    FakeElement child;
    child.elementName = "quality";
    plant.children.elements = {&child};
    plant.attributeList.push_back(Attribute::kQuality);
    EXPECT_EQ(below(plantProxy, "", "quality").attribute()->name(), "quality");
}

TEST_F(ElementReferenceDataTest, ACustomElementHasEveryWellNamedMember) {
    EXPECT_EQ(below(customProxy, ".any.thing", "x").attribute()->name(), "x");
    EXPECT_EQ(below(customProxy, "", "[a.b]").event({})->name(), "[a.b]");
    EXPECT_EQ(below(customProxy, "", "").task().error(), L"empty task name");
}

struct MemberName {
    std::string_view name;
    std::wstring_view attribute;
    std::wstring_view event;
    std::wstring_view task;
};

class MalformedMemberNameTest : public ElementReferenceDataTest,
                                public ::testing::WithParamInterface<MemberName> {};

TEST_P(MalformedMemberNameTest, IsRefusedWithTheMessageOfItsKind) {
    // A custom element would have any member, so every refusal comes from the name.
    const MemberName& param = GetParam();
    const ElementReferenceData data = below(customProxy, "", std::string(param.name));
    EXPECT_EQ(data.attribute().error(), param.attribute);
    EXPECT_EQ(data.event({}).error(), param.event);
    EXPECT_EQ(data.task().error(), param.task);
}

INSTANTIATE_TEST_SUITE_P(
    AllChecks, MalformedMemberNameTest,
    ::testing::Values(MemberName{"", L"empty attribute name", L"empty event name",
                                 L"empty task name"},
                      MemberName{"[a", L"“[” without “]” in attribute name",
                                 L"“[” without “]” in event name", L"“[” without “]” in task name"},
                      MemberName{"[", L"“[” without “]” in attribute name",
                                 L"“[” without “]” in event name", L"“[” without “]” in task name"},
                      MemberName{"[a]b", L"closing “]” must be at the end of the attribute name",
                                 L"closing “]” must be at the end of the event name",
                                 L"closing “]” must be at the end of the task name"},
                      MemberName{"[]]", L"closing “]” must be at the end of the attribute name",
                                 L"closing “]” must be at the end of the event name",
                                 L"closing “]” must be at the end of the task name"},
                      MemberName{"[]", L"an empty set of “[]” is not a valid attribute name",
                                 L"an empty set of “[]” is not a valid event name",
                                 L"an empty set of “[]” is not a valid task name"}));

TEST_F(ElementReferenceDataTest, OnlyANameThatBeginsWithABracketIsChecked) {
    for (const std::string_view name : {"a]b", "a[b", "]", "a.b", "[a.b]", "[[]", " "}) {
        const ElementReferenceData data = below(customProxy, "", std::string(name));
        EXPECT_EQ(data.attribute()->name(), name);
        EXPECT_EQ(data.event({})->name(), name);
        EXPECT_EQ(data.task()->name(), name);
    }
}

TEST_F(ElementReferenceDataTest, ResolvingChangesNothing) {
    const ElementReferenceData data = below(plantProxy, ".[", "[");
    EXPECT_FALSE(data.attribute().has_value());
    EXPECT_EQ(data.suffix(), ".[");
    EXPECT_THAT(data.memberName(), Optional(Eq("[")));
    EXPECT_EQ(data.proxy(), plantProxy);
    EXPECT_THAT(calls, IsEmpty());
}

// Every short text, judged by expressions that say which ones are well formed.

TEST_F(ElementReferenceDataTest, EveryShortSuffixIsNamedOrRefusedByTheGrammar) {
    const std::regex wellFormed(R"(^([^.\[][^.]*|\[[^\]]+\](?=\.|$)))");
    corvane::tests::forEveryShortText(5, [&](const std::string& suffix) {
        if (suffix.empty()) {
            return;
        }
        std::smatch component;
        const std::wstring topLevel = below(rootProxy, suffix).element().error();
        if (std::regex_search(suffix, component, wellFormed)) {
            const std::string name = component[1];
            EXPECT_EQ(topLevel, L"the element “" + std::wstring(name.begin(), name.end()) +
                                    L"” does not exist")
                << suffix;
        } else {
            EXPECT_EQ(topLevel.find(L"does not exist"), std::wstring::npos) << suffix;
        }
        const std::wstring child = below(plantProxy, "." + suffix).element().error();
        if (!component.empty()) {
            const std::string name = component[1];
            EXPECT_EQ(child, L"the element “plant” does not have a child named “" +
                                 std::wstring(name.begin(), name.end()) + L"”")
                << suffix;
        } else {
            EXPECT_EQ(child.find(L"does not have a child"), std::wstring::npos) << suffix;
        }
    });
}

TEST_F(ElementReferenceDataTest, EveryShortMemberNameIsTakenOrRefusedByTheGrammar) {
    const std::regex wellFormed(R"([^\[].*|\[[^\]]+\])");
    corvane::tests::forEveryShortText(5, [&](const std::string& name) {
        const ElementReferenceData data = below(customProxy, "", name);
        EXPECT_EQ(data.attribute().has_value(), std::regex_match(name, wellFormed)) << name;
    });
}

} // namespace
