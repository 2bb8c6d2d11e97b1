#include "SkillbenchFixture.hpp"

namespace {

using corvane::skillbench::test::Outcome;
using corvane::skillbench::test::runWith;
using corvane::skillbench::test::SkillbenchTest;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class SkillbenchEdit : public SkillbenchTest {
protected:
    SkillbenchEdit() { writePlant(); }

    /// Edits plant.json into out.json.
    static Outcome edit(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "plant.json");
        arguments.insert(arguments.end(), {"-o", "out.json"});
        return runOn("edit", arguments);
    }
    /// Edits in vain; returns the sentence.
    static std::string refused(const std::vector<std::string>& arguments) {
        const Outcome outcome = edit(arguments);
        EXPECT_EQ(outcome.exitCode, 1);
        EXPECT_FALSE(std::filesystem::exists("out.json"));
        return outcome.err;
    }
};

TEST_F(SkillbenchEdit, ARenamingTellsTheReferences) {
    EXPECT_EQ(edit({"--rename", "Werk.[Tank 1.5]=Wasser"}),
              (Outcome{0,
                       R"(--rename Werk.[Tank 1.5]=Wasser
  renamed     Werk.[Tank 1.5] → Werk.Wasser
  new key     Gauge.tank: Werk.Wasser
  value       Gauge.tank: Werk.Wasser
  new key     Gauge.source: Werk.Wasser.level
  value       Gauge.source: Werk.Wasser.level
changed keys
  Werk.[Tank 1.5] → Werk.Wasser
saved 4 elements to out.json
)",
                       ""}));
    EXPECT_THAT(read("out.json"), HasSubstr("\"source\": \"Werk.Wasser.level\""));
}

TEST_F(SkillbenchEdit, ARenamingChangesTheKeysBelow) {
    EXPECT_THAT(edit({"--rename", "Werk=Anlage"}).out, EndsWith("changed keys\n"
                                                                "  Werk → Anlage\n"
                                                                "  Werk.Öl → Anlage.Öl\n"
                                                                "  Werk.[Tank 1.5] → "
                                                                "Anlage.[Tank 1.5]\n"
                                                                "saved 4 elements to out.json\n"));
}

TEST_F(SkillbenchEdit, AMoveTakesTheErrorsAlong) {
    write("plant.json", R"({"children": [{"group": {"name": "A", "children": [
        {"tank": {"name": "T", "level": 101}}]}}, {"group": {"name": "B"}}]})");
    EXPECT_EQ(edit({"--move", "A.T=B", "--move", "B.T="}), (Outcome{0,
                                                                    R"(--move A.T=B
  errors      A: 0
  errors      (root): 0
  errors      B: 1
  errors      (root): 1
  moved       A.T → B.T
--move B.T=
  errors      B: 0
  errors      (root): 0
  errors      (root): 1
  moved       B.T → T
changed keys
  A.T → T
saved 3 elements to out.json
)",
                                                                    ""}));
}

TEST_F(SkillbenchEdit, ARemovalLeavesReferencesDangling) {
    EXPECT_EQ(edit({"--remove", "Werk.[Tank 1.5]"}), (Outcome{0,
                                                              R"(--remove Werk.[Tank 1.5]
  removing    Werk.[Tank 1.5]
  removed     Werk.[Tank 1.5]
  resolution  Gauge.tank: Werk.[Tank 1.5]
  state       Gauge.tank: error: the element “Werk” does not have a child named “[Tank 1.5]”
  errors      Gauge: 1
  errors      (root): 1
  resolution  Gauge.source: Werk.[Tank 1.5].level
  state       Gauge.source: error: the element “Werk” does not have a child named “[Tank 1.5]”
  errors      Gauge: 2
  errors      (root): 2
changed keys
  Werk.[Tank 1.5]  (removed)
saved 3 elements to out.json
)",
                                                              ""}));
}

TEST_F(SkillbenchEdit, AValueReachesItsDependentsAndTheErrorCounts) {
    EXPECT_EQ(edit({"--set", "Werk.Öl.level=140"}), (Outcome{0,
                                                             R"(--set Werk.Öl.level=140
  value       Werk.Öl.level: 140
  state       Werk.Öl.level: error: must be at most 100
  value       Werk.Öl.summary: 140 %
  errors      Werk.Öl: 1
  errors      Werk: 1
  errors      (root): 1
no key changed
saved 4 elements to out.json
)",
                                                             ""}));
    EXPECT_THAT(read("out.json"), HasSubstr("\"level\": 140"));
}

TEST_F(SkillbenchEdit, AValueChangesTheVisibilityOfAnother) {
    EXPECT_THAT(edit({"--set", "Werk.Öl.mode=manual"}).out,
                StartsWith("--set Werk.Öl.mode=manual\n"
                           "  value       Werk.Öl.mode: manual\n"
                           "  visibility  Werk.Öl.setPoint: hidden\n"));
}

TEST_F(SkillbenchEdit, SetsThePropertiesOfRows) {
    EXPECT_THAT(edit({"--set", "Werk.Öl.limits.1.high=101"}).out,
                StartsWith("--set Werk.Öl.limits.1.high=101\n"
                           "  value       Werk.Öl.limits.1.high: 101\n"
                           "  state       Werk.Öl.limits.1.high: error: must be at most 100\n"
                           "  errors      Werk.Öl: 1\n"));
}

TEST_F(SkillbenchEdit, TakesTheNumberOfARowInBracketsToo) {
    EXPECT_THAT(edit({"--set", "Werk.Öl.limits[1].high=101"}).out,
                HasSubstr("  value       Werk.Öl.limits.1.high: 101\n"));
}

TEST_F(SkillbenchEdit, RowsThatCameWithAnEditAreWatchedAfterwards) {
    EXPECT_EQ(edit({"--set", "Werk.Öl.limitCount=3", "--set", "Werk.Öl.limits.2.high=7"}),
              (Outcome{0,
                       R"(--set Werk.Öl.limitCount=3
  value       Werk.Öl.limitCount: 3
  value       Werk.Öl.limits: 3
--set Werk.Öl.limits.2.high=7
  value       Werk.Öl.limits.2.high: 7
no key changed
saved 4 elements to out.json
)",
                       ""}));
}

TEST_F(SkillbenchEdit, PointsReferencesElsewhere) {
    EXPECT_EQ(edit({"--set", "Gauge.tank=Werk.Öl", "--set", "Gauge.source=Werk.Öl.pressure"}),
              (Outcome{0,
                       R"(--set Gauge.tank=Werk.Öl
  value       Gauge.tank: Werk.Öl
--set Gauge.source=Werk.Öl.pressure
  value       Gauge.source: Werk.Öl.pressure
  state       Gauge.source: error: the element “Werk.Öl” does not have an attribute named “pressure”
  errors      Gauge: 1
  errors      (root): 1
no key changed
saved 4 elements to out.json
)",
                       ""}));
    EXPECT_THAT(edit({"--set", "Gauge.tank="}).out, HasSubstr("  value       Gauge.tank: \n"));
}

TEST_F(SkillbenchEdit, DoesTheEditsInTheirOrder) {
    EXPECT_EQ(edit({"--set", "Werk.Öl.level=1", "--rename", "Werk.Öl=[a=b]", "--set",
                    "Werk.[a=b].level=2", "--move", "Werk.[a=b]=", "--rename", "[a=b]=c=d",
                    "--rename", "c=d=e"})
                  .err,
              "");
    EXPECT_THAT(read("out.json"), HasSubstr("\"name\": \"e\""));
    EXPECT_THAT(read("out.json"), HasSubstr("\"level\": 2"));
}

TEST_F(SkillbenchEdit, SavesToTheConfigurationItselfWithoutAnotherFile) {
    EXPECT_THAT(runOn("edit", {"plant.json", "--rename", "Gauge=G"}).out,
                EndsWith("saved 4 elements to plant.json\n"));
    EXPECT_THAT(read("plant.json"), HasSubstr("\"name\": \"G\""));
}

TEST_F(SkillbenchEdit, TellsTheUserElsewhereWhenTheStandardOutputTakesTheConfiguration) {
    const Outcome outcome = runWith({"edit", "--skill", skillLibrary(), "-", "--rename", "Gauge=G"},
                                    read("plant.json"));
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_THAT(outcome.out, StartsWith("{\n  \"children\": ["));
    EXPECT_THAT(outcome.out, HasSubstr("\"name\": \"G\""));
    EXPECT_EQ(outcome.err, "--rename Gauge=G\n"
                           "  renamed     Gauge → G\n"
                           "changed keys\n"
                           "  Gauge → G\n"
                           "saved 4 elements to the standard output\n");
}

TEST_F(SkillbenchEdit, RefusesToLoseAChangeMadeMeanwhile) {
    write("plant.json", R"({"children": [{"trouble": {"name": "T", "where": "set",
        "how": "change the file"}}]})");
    const std::vector<std::string> command{"edit",       "--skill", CORVANE_TEST_TROUBLE_SKILL,
                                           "plant.json", "--set",   "T.note=x"};
    EXPECT_EQ(runWith(command).err,
              "skillbench edit: “plant.json” has changed since it was read; nothing was saved "
              "(--force overwrites it)\n");
    std::vector<std::string> forced = command;
    forced.emplace_back("--force");
    EXPECT_EQ(runWith(forced).exitCode, 0);
    EXPECT_THAT(read("plant.json"), HasSubstr("\"note\": \"x\""));
}

TEST_F(SkillbenchEdit, SavesNothingWhenAnEditFails) {
    const std::string before = read("plant.json");
    const Outcome outcome =
        runOn("edit", {"plant.json", "--rename", "Gauge=G", "--rename", "Werk.Öl=[Tank 1.5]"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.err,
              "skillbench edit: --rename Werk.Öl=[Tank 1.5]: the element “Werk” already has a "
              "child named “[Tank 1.5]”; nothing was saved\n");
    EXPECT_EQ(read("plant.json"), before);
}

TEST_F(SkillbenchEdit, SaysWhyAnEditFails) {
    EXPECT_EQ(refused({"--rename", "Werk.x=y"}),
              "skillbench edit: --rename Werk.x=y: there is no element “Werk.x”; nothing was "
              "saved\n");
    EXPECT_EQ(refused({"--rename", "Gauge=a.b"}),
              "skillbench edit: --rename Gauge=a.b: the element name “a.b” contains “.” and must "
              "be enclosed in brackets; nothing was saved\n");
    EXPECT_EQ(refused({"--rename", "Gauge"}),
              "skillbench edit: --rename Gauge: the form is KEY=NAME; nothing was saved\n");
    EXPECT_EQ(refused({"--move", "Gauge"}),
              "skillbench edit: --move Gauge: the form is KEY=PARENT; nothing was saved\n");
    EXPECT_EQ(refused({"--move", "Gauge=Werk.Öl"}),
              "skillbench edit: --move Gauge=Werk.Öl: an element of the class “tank” does not "
              "accept children of the class “gauge”; nothing was saved\n");
    EXPECT_EQ(refused({"--remove", "x"}),
              "skillbench edit: --remove x: there is no element “x”; nothing was saved\n");
    EXPECT_EQ(refused({"--set", "Gauge.tank"}),
              "skillbench edit: --set Gauge.tank: the form is KEY.PROPERTY=VALUE; nothing was "
              "saved\n");
    EXPECT_EQ(refused({"--set", "x.y=z"}),
              "skillbench edit: --set x.y=z: “x.y” names no property of an element; nothing was "
              "saved\n");
    EXPECT_EQ(refused({"--set", "Werk.Öl.levl=5"}),
              "skillbench edit: --set Werk.Öl.levl=5: the element “Werk.Öl” has no property "
              "“levl”; nothing was saved\n");
    EXPECT_EQ(refused({"--set", "Werk.Öl.limits.2.high=5"}),
              "skillbench edit: --set Werk.Öl.limits.2.high=5: the element “Werk.Öl” has no "
              "property “limits.2.high”; nothing was saved\n");
    EXPECT_EQ(refused({"--set", "Werk.Öl.level=x"}),
              "skillbench edit: --set Werk.Öl.level=x: not a whole number; nothing was saved\n");
    EXPECT_EQ(refused({"--set", "Werk.Öl.summary=x"}),
              "skillbench edit: --set Werk.Öl.summary=x: the property is read only; nothing was "
              "saved\n");
    EXPECT_EQ(refused({"--set", "Werk.Öl.limits=x"}),
              "skillbench edit: --set Werk.Öl.limits=x: a list is set row by row, as in "
              "LIST.0.PROPERTY=VALUE; nothing was saved\n");
}

TEST_F(SkillbenchEdit, NeedsSomethingToDo) {
    EXPECT_EQ(runOn("edit", {"plant.json"}),
              (Outcome{2, "",
                       "skillbench edit: there is no edit to do; “skillbench edit --help” "
                       "explains\n"}));
}

TEST_F(SkillbenchEdit, NeedsAConfigurationThatCanBeLoaded) {
    write("plant.json", "[]");
    EXPECT_EQ(refused({"--remove", "x"}),
              "plant.json:1:1: error: expected an object, found an array\n"
              "skillbench edit: “plant.json” cannot be loaded; no file was written\n");
}

TEST_F(SkillbenchEdit, SaysWhyItCannotWrite) {
    const Outcome outcome =
        runOn("edit", {"plant.json", "--rename", "Gauge=G", "-o", "missing/plant.json"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.err, StartsWith("skillbench edit: cannot write missing/plant.json: "));
}

} // namespace
