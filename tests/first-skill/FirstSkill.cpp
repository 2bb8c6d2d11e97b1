// The skill that the first guide builds, and the same skill without the kit.

#include <corvane/workbench/skill/AbstractElementFactory.hpp>
#include <corvane/workbench/testing/Bench.hpp>
#include <corvane/workbench/testing/matchers.hpp>
#include <corvane/workbench/testing/savedSettings.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using namespace corvane::workbench::testing;
using testing::ElementsAre;
using testing::Not;

class FirstSkill : public testing::TestWithParam<std::string_view> {
protected:
    void loadConfiguration() { bench.loadFile(FIRST_SKILL_CONFIGURATION); }

    Bench bench{GetParam() == "kit" ? FIRST_SKILL_LIBRARY : BY_HAND_LIBRARY};
};

INSTANTIATE_TEST_SUITE_P(Written, FirstSkill, testing::Values("kit", "byHand"),
                         [](const auto& written) { return std::string(written.param); });

TEST_P(FirstSkill, LoadsItsConfigurationWithoutProblems) {
    loadConfiguration();
    EXPECT_THAT(bench, HasErrors(0));
    EXPECT_THAT(bench.at("main.topSpeed"), HasText("1500"));
    EXPECT_THAT(bench.at("main.steps"), HasRows("water", "sugar"));
    EXPECT_THAT(bench.at("main.steps[1].speed"), HasText("900"));
    EXPECT_THAT(bench.at("second.leader"), HasText("main.speed"));
    EXPECT_THAT(bench.element("main").attributes(), ElementsAre("speed"));
}

TEST_P(FirstSkill, AnAddedMixerIsValid) {
    const BenchElement mixer = bench.add("FirstSkill.Mixer");
    EXPECT_EQ(mixer.key(), "Mixer");
    EXPECT_THAT(mixer.at("topSpeed"), HasText("1500"));
    EXPECT_THAT(mixer.at("share"), HasText("100"));
    EXPECT_THAT(mixer, HasErrors(0));
}

TEST_P(FirstSkill, RefusesWhatIsNoValueAndKeepsWhatBreaksARule) {
    loadConfiguration();
    EXPECT_THAT(bench.at("main.topSpeed"), Refuses("fast", Not(testing::IsEmpty())));
    bench.at("main.topSpeed").set("3001");
    EXPECT_THAT(bench.at("main.topSpeed"), HasError("The top speed must lie between 1 and 3000."));
    EXPECT_THAT(bench, HasErrors(1));
}

TEST_P(FirstSkill, TheRuleOfTheListLooksAtRowsAndTopSpeed) {
    loadConfiguration();
    bench.at("main.topSpeed").set("800");
    EXPECT_THAT(bench.at("main.steps"), HasError("No step may be faster than the top speed."));
    EXPECT_THAT(bench, Announced(R"(
        value       main.topSpeed: 800
        state       main.steps: error: No step may be faster than the top speed.
        errors      main: 1
        errors      (root): 1)"));
    bench.at("main.steps[1].speed").set("700");
    EXPECT_THAT(bench.at("main.steps"), IsOk());
}

TEST_P(FirstSkill, TheErrorsOfRowsCountUpToTheRoot) {
    loadConfiguration();
    bench.at("main.steps").insertRow(1);
    EXPECT_THAT(bench.at("main.steps[1].ingredient"), HasError("Name the ingredient."));
    EXPECT_THAT(bench, HasErrors(1));
    bench.at("main.steps[1].ingredient").set("salt");
    EXPECT_THAT(bench, HasErrors(0));
    bench.at("main.steps[0].speed").set("0");
    EXPECT_THAT(bench.at("main.steps[0].speed"), HasError("The speed must be greater than 0."));
    EXPECT_THAT(bench, HasErrors(1));
    bench.at("main.steps").removeRow(0);
    EXPECT_THAT(bench.at("main.steps"), HasRows("salt", "sugar"));
    EXPECT_THAT(bench, HasErrors(0));
}

TEST_P(FirstSkill, RefusesRowsThatDoNotExist) {
    loadConfiguration();
    EXPECT_NE(bench.at("main.steps").tryInsertRow(3), "");
    EXPECT_NE(bench.at("main.steps").tryRemoveRow(2), "");
    EXPECT_THAT(bench.at("main.steps"), HasRows("water", "sugar"));
}

TEST_P(FirstSkill, TheShareIsVisibleOnlyWithALeader) {
    loadConfiguration();
    EXPECT_THAT(bench.at("second.share"), IsVisible());
    EXPECT_THAT(bench.at("main.share"), IsHidden());
    bench.at("second.leader").set("");
    EXPECT_THAT(bench.at("second.share"), IsHidden());
    bench.at("second.leader").set("main.speed");
    EXPECT_THAT(bench.at("second.share"), IsVisible());
    bench.at("second.share").set("0");
    EXPECT_THAT(bench.at("second.share"), HasError("The share must be greater than 0 %."));
}

TEST_P(FirstSkill, TheLeaderFollowsARenameAndMissesARemovedElement) {
    loadConfiguration();
    bench.element("main").rename("first");
    EXPECT_THAT(bench.at("second.leader"), HasText("first.speed"));
    EXPECT_THAT(bench.at("second.leader"), Announced(R"(
        new key     second.leader: first.speed
        value       second.leader: first.speed)"));
    bench.element("first").remove();
    EXPECT_THAT(bench.at("second.leader"), HasText("first.speed"));
    EXPECT_THAT(bench.at("second.leader"), HasError("the element “first” does not exist"));
}

TEST_P(FirstSkill, AStepThatWaitsFollowsARenameAndMissesARemovedElement) {
    loadConfiguration();
    EXPECT_THAT(bench.at("second.steps[0].waitsFor"), HasText("main"));
    bench.element("main").rename("first");
    EXPECT_THAT(bench.at("second.steps[0].waitsFor"), HasText("first"));
    EXPECT_THAT(bench.at("second.steps[0].waitsFor"), IsOk());
    bench.element("first").remove();
    EXPECT_THAT(bench.at("second.steps[0].waitsFor"),
                HasError("the element “first” does not exist"));
    EXPECT_THAT(bench, HasErrors(2));
}

TEST_P(FirstSkill, AStepThatWaitsForNobodyThereIsAnErrorFromTheStart) {
    bench.load(R"({"children": [{"FirstSkill.Mixer": {"name": "m", "topSpeed": 100, "steps": [
        {"ingredient": "gone", "waitsFor": "gone"}]}}]})");
    EXPECT_THAT(bench.problems(), ElementsAre("configuration.json:2:44: error: the element "
                                              "“gone” does not exist"));
    EXPECT_THAT(bench, HasErrors(1));
}

TEST_P(FirstSkill, WhatIsSavedLoadsAgainAsTheSame) {
    loadConfiguration();
    const std::string saved = bench.saved();
    EXPECT_THAT(saved, testing::HasSubstr("\"leader\": \"main.speed\""));
    EXPECT_THAT(saved, testing::HasSubstr("\"ingredient\": \"sugar\""));
    EXPECT_THAT(saved, testing::HasSubstr("\"waitsFor\": \"main\""));
    bench.load(saved);
    EXPECT_EQ(bench.saved(), saved);
}

TEST_P(FirstSkill, AnUnknownMemberIsReportedWithItsPlace) {
    static_cast<void>(bench.tryLoad("{\"children\": [\n"
                                    " {\"FirstSkill.Mixer\": {\"name\": \"m\", \"topSped\": 5}}\n"
                                    "]}"));
    EXPECT_THAT(bench.problems(),
                ElementsAre("configuration.json:2:37: error: unknown parameter \"topSped\""));
}

TEST_P(FirstSkill, AnUnknownMemberOfAStepIsReportedWithItsPlace) {
    static_cast<void>(bench.tryLoad(
        "{\"children\": [\n"
        " {\"FirstSkill.Mixer\": {\"name\": \"m\", \"steps\": [{\"speed\": 5, \"x\": 1}]}}\n"
        "]}"));
    EXPECT_THAT(bench.problems(),
                ElementsAre("configuration.json:2:60: error: unknown parameter \"x\""));
}

TEST_P(FirstSkill, ACopyHasTheSettingsAndRowsOfItsOwn) {
    loadConfiguration();
    const BenchElement main = bench.element("main");
    const auto copy = main.node().elementClass().factory().copyElement(*main.node().skillElement());
    EXPECT_EQ(savedSettings(*copy), main.saved());
    bench.at("main.steps[0].speed").set("0");
    EXPECT_NE(savedSettings(*copy), main.saved());
    EXPECT_EQ(copy->propertyErrorCount(), 0U);
}

} // namespace
