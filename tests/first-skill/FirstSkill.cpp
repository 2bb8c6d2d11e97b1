// The skill that docs/writing-a-skill.md builds, in the reference workbench.

#include "utils/io/TemporaryFolder.hpp"
#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/workbench/host/Workbench.hpp>
#include <corvane/workbench/skill/AbstractElementFactory.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

using corvane::tests::TemporaryFolder;
using corvane::workbench::host::ElementNode;
using corvane::workbench::host::LoadResult;
using corvane::workbench::host::Workbench;
using corvane::workbench::skill::EditableProperty;
using corvane::workbench::skill::SubElement;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The property of that name of an element or of a row.
template <class Owner>
EditableProperty property(Owner& owner, std::string_view name) {
    EditableProperty result;
    const auto pick = [&](const EditableProperty& candidate) {
        if (candidate.name == name) {
            result = candidate;
        }
    };
    owner.forEachEditableProperty(pick);
    EXPECT_EQ(result.name, name);
    return result;
}

EditableProperty property(const ElementNode* element, std::string_view name) {
    return property(*element->skillElement(), name);
}

std::vector<SubElement*> rowsOf(const EditableProperty& list) {
    std::vector<SubElement*> rows;
    const auto collect = [&](SubElement& row) { rows.push_back(&row); };
    list.forEachSubElement(collect);
    return rows;
}

class FirstSkill : public ::testing::Test {
protected:
    FirstSkill() {
        const auto loaded = workbench.loadSkills(FIRST_SKILL_LIBRARY);
        EXPECT_TRUE(loaded) << toString(loaded.error());
    }

    LoadResult load(std::string_view text) {
        corvane::utils::io::MemoryInputStream<char> stream(text);
        return workbench.loadConfiguration(stream, "mixers.json");
    }

    void loadConfiguration() {
        const LoadResult result = workbench.loadConfiguration(FIRST_SKILL_CONFIGURATION);
        ASSERT_TRUE(result);
        ASSERT_THAT(result.problems, IsEmpty());
    }

    std::vector<std::string> problems() {
        std::vector<std::string> result;
        const auto collect = [&](const corvane::workbench::host::PropertyProblem& problem) {
            result.push_back(problem.element->primaryKey() + ": " + problem.path);
        };
        workbench.forEachPropertyProblem(workbench.root(), collect);
        return result;
    }

    Workbench workbench;
};

TEST_F(FirstSkill, TheConfigurationLoadsWithoutProblems) {
    loadConfiguration();

    ASSERT_EQ(workbench.elementCount(), 2U);
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 0U);
    const ElementNode* main = workbench.findElement("main");
    EXPECT_EQ(main->type(), L"Mixer");
    EXPECT_EQ(property(main, "topSpeed").text(), L"1500");
    const auto rows = rowsOf(property(main, "steps"));
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[1]->displayName(), L"sugar");
    EXPECT_EQ(property(*rows[1], "speed").text(), L"900");
}

TEST_F(FirstSkill, AnAddedMixerIsValid) {
    const auto added = workbench.add("", "FirstSkill.Mixer");

    ASSERT_TRUE(added);
    EXPECT_EQ((*added)->name(), "Mixer");
    EXPECT_EQ(property(static_cast<const ElementNode*>(*added), "topSpeed").text(), L"1500");
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 0U);
}

TEST_F(FirstSkill, ASetterRefusesWhatIsNoValueAndPublishesWhatIs) {
    loadConfiguration();
    const EditableProperty topSpeed = property(workbench.findElement("main"), "topSpeed");

    EXPECT_EQ(topSpeed.setText(L"fast").error(), L"Enter a whole number.");
    EXPECT_EQ(topSpeed.text(), L"1500");

    EXPECT_TRUE(topSpeed.setText(L"3001"));
    EXPECT_EQ(topSpeed.property.state().error(), L"The top speed must lie between 1 and 3000.");
    EXPECT_THAT(problems(), ElementsAre("main: topSpeed"));
}

TEST_F(FirstSkill, TheRuleOfTheListLooksAtRowsAndTopSpeed) {
    loadConfiguration();
    const ElementNode* main = workbench.findElement("main");
    const EditableProperty steps = property(main, "steps");

    EXPECT_TRUE(property(main, "topSpeed").setText(L"800"));
    EXPECT_EQ(steps.property.state().error(), L"No step may be faster than the top speed.");
    EXPECT_TRUE(property(*rowsOf(steps)[1], "speed").setText(L"700"));
    EXPECT_TRUE(steps.property.state());
}

TEST_F(FirstSkill, TheErrorsOfRowsCountUpToTheRoot) {
    loadConfiguration();
    const EditableProperty steps = property(workbench.findElement("main"), "steps");

    EXPECT_TRUE(steps.insertSubElement(1));
    EXPECT_THAT(problems(), ElementsAre("main: steps.1.ingredient"));
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 1U);

    EXPECT_TRUE(property(*rowsOf(steps)[1], "ingredient").setText(L"salt"));
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 0U);

    EXPECT_TRUE(property(*rowsOf(steps)[0], "speed").setText(L"0"));
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 1U);
    EXPECT_TRUE(steps.removeSubElement(0));
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 0U);

    EXPECT_EQ(steps.insertSubElement(3).error(), L"There is no such step.");
    EXPECT_EQ(steps.removeSubElement(2).error(), L"There is no such step.");
}

TEST_F(FirstSkill, ARowPublishesItsDisplayNameWithItsIngredient) {
    loadConfiguration();
    SubElement& row = *rowsOf(property(workbench.findElement("main"), "steps"))[0];
    int heard = 0;
    const auto subscription = row.displayNameProperty().subscribe({.value = [&heard] { ++heard; }});

    EXPECT_TRUE(property(row, "ingredient").setText(L"milk"));

    EXPECT_EQ(heard, 1);
    EXPECT_EQ(row.displayName(), L"milk");
}

TEST_F(FirstSkill, TheShareIsVisibleOnlyWithALeader) {
    loadConfiguration();
    const ElementNode* second = workbench.findElement("second");
    const EditableProperty leader = property(second, "leader");
    const EditableProperty share = property(second, "share");
    EXPECT_TRUE(share.property.visible());
    EXPECT_FALSE(property(workbench.findElement("main"), "share").property.visible());

    EXPECT_TRUE(workbench.setReference(leader, ""));
    EXPECT_FALSE(share.property.visible());

    EXPECT_TRUE(workbench.setReference(leader, "main.speed"));
    EXPECT_TRUE(share.property.visible());
}

TEST_F(FirstSkill, TheLeaderFollowsARenameAndMissesARemovedElement) {
    loadConfiguration();
    const EditableProperty leader = property(workbench.findElement("second"), "leader");
    std::vector<std::string> heard;
    const auto subscription =
        leader.property.subscribe({.value = [&] { heard.emplace_back("value"); },
                                   .state = [&] { heard.emplace_back("state"); }});

    EXPECT_TRUE(workbench.rename("main", "first"));
    EXPECT_EQ(leader.text(), L"first.speed");
    EXPECT_THAT(heard, ElementsAre("value"));

    EXPECT_TRUE(workbench.remove("first"));
    EXPECT_EQ(leader.text(), L"first.speed");
    EXPECT_EQ(leader.property.state().error(), L"the element “first” does not exist");
    EXPECT_THAT(heard, ElementsAre("value", "state"));
    EXPECT_THAT(problems(), ::testing::Contains("second: leader"));
}

TEST_F(FirstSkill, AStepThatWaitsFollowsARenameAndMissesARemovedElement) {
    loadConfiguration();
    const EditableProperty steps = property(workbench.findElement("second"), "steps");
    const EditableProperty waitsFor = property(*rowsOf(steps)[0], "waitsFor");
    EXPECT_EQ(waitsFor.text(), L"main");
    EXPECT_TRUE(waitsFor.property.state());

    EXPECT_TRUE(workbench.rename("main", "first"));
    EXPECT_EQ(waitsFor.text(), L"first");

    EXPECT_TRUE(workbench.remove("first"));
    EXPECT_EQ(waitsFor.property.state().error(), L"the element “first” does not exist");
    EXPECT_THAT(problems(), ElementsAre("second: leader", "second: steps.0.waitsFor"));
}

TEST_F(FirstSkill, AStepThatWaitsForNobodyThereIsAnErrorFromTheStart) {
    const LoadResult result = load("{\"children\": [{\"FirstSkill.Mixer\": {\"name\": \"m\", "
                                   "\"topSpeed\": 100, \"steps\": [\n"
                                   "{\"ingredient\": \"gone\", \"waitsFor\": \"gone\"}]}}]}");

    EXPECT_TRUE(result.loaded);
    ASSERT_EQ(result.problems.size(), 1U);
    EXPECT_EQ(toString(result.problems[0]),
              "mixers.json:2:36: error: the element “gone” does not exist");
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 1U);
    EXPECT_THAT(problems(), ElementsAre("m: steps.0.waitsFor"));
}

TEST_F(FirstSkill, WhatIsSavedLoadsAgainAsTheSame) {
    loadConfiguration();
    const TemporaryFolder folder;
    const auto once = folder.path() / "once.json";
    const auto twice = folder.path() / "twice.json";

    ASSERT_TRUE(workbench.saveConfiguration(once));
    ASSERT_TRUE(workbench.loadConfiguration(once));
    ASSERT_TRUE(workbench.saveConfiguration(twice));

    const std::string saved = TemporaryFolder::read(once);
    EXPECT_EQ(saved, TemporaryFolder::read(twice));
    EXPECT_THAT(saved, ::testing::HasSubstr("\"leader\": \"main.speed\""));
    EXPECT_THAT(saved, ::testing::HasSubstr("\"ingredient\": \"sugar\""));
    EXPECT_THAT(saved, ::testing::HasSubstr("\"waitsFor\": \"main\""));
}

TEST_F(FirstSkill, AnUnknownMemberIsReportedWithItsPlace) {
    const LoadResult result = load("{\"children\": [\n"
                                   " {\"FirstSkill.Mixer\": {\"name\": \"m\", \"topSped\": 5}}\n"
                                   "]}");

    EXPECT_FALSE(result);
    ASSERT_EQ(result.problems.size(), 1U);
    EXPECT_EQ(toString(result.problems[0]),
              "mixers.json:2:37: error: unknown parameter \"topSped\"");
}

TEST_F(FirstSkill, AnUnknownMemberOfAStepIsReportedWithItsPlace) {
    const LoadResult result =
        load("{\"children\": [\n"
             " {\"FirstSkill.Mixer\": {\"name\": \"m\", \"steps\": [{\"speed\": 5, \"x\": 1}]}}\n"
             "]}");

    EXPECT_FALSE(result);
    ASSERT_EQ(result.problems.size(), 1U);
    EXPECT_EQ(toString(result.problems[0]), "mixers.json:2:60: error: unknown parameter \"x\"");
}

TEST_F(FirstSkill, ACopyHasTheSettingsAndRowsOfItsOwn) {
    loadConfiguration();
    const ElementNode* main = workbench.findElement("main");

    const auto copy = main->elementClass().factory().copyElement(*main->skillElement());

    const EditableProperty steps = property(*copy, "steps");
    EXPECT_EQ(property(*copy, "topSpeed").text(), L"1500");
    ASSERT_EQ(rowsOf(steps).size(), 2U);
    EXPECT_TRUE(property(*rowsOf(steps)[0], "speed").setText(L"0"));
    EXPECT_EQ(copy->propertyErrorCount(), 1U);
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 0U);
}

} // namespace
