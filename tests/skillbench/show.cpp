#include "SkillbenchFixture.hpp"

namespace {

using corvane::skillbench::test::Outcome;
using corvane::skillbench::test::runWith;
using corvane::skillbench::test::SkillbenchTest;
using testing::HasSubstr;
using testing::StartsWith;

class SkillbenchShow : public SkillbenchTest {};

TEST_F(SkillbenchShow, PrintsTheTreeWithAllProperties) {
    writePlant();
    EXPECT_EQ(runOn("show", {"plant.json"}), (Outcome{0,
                                                      R"(plant.json  (4 elements, no errors)
Werk  (Group, no errors)
  Öl  (Tank, no errors)
    ok     Note:
    ok     Füllstand: 40
    ok     Mode: automatic
    ok     Set point: 60
    ok     Summary: 40 %
    ok     Number of limits: 2
    ok     Limits: 2
            0: Limit  (no errors)
              ok     High: 80
            1: Limit  (no errors)
              ok     High: 90
  [Tank 1.5]  (Tank, no errors)
    ok     Note:
    ok     Füllstand: 7
    ok     Mode: manual
    hidden Set point: 0
    ok     Summary: 7 %
    ok     Number of limits: 0
    ok     Limits: 0
Gauge  (Gauge, no errors)
  ok     Tank: Werk.[Tank 1.5]
  ok     Source: Werk.[Tank 1.5].level
)",
                                                      ""}));
}

TEST_F(SkillbenchShow, PrintsErrorsAndTheirCountsUpToTheRoot) {
    write("plant.json", R"({"children": [{"group": {"name": "G", "children": [
        {"tank": {"name": "T", "level": 120, "setPoint": 300, "limits": [101, 5]}}]}}]})");
    EXPECT_EQ(runOn("show", {"plant.json"}), (Outcome{0,
                                                      R"(plant.json  (2 elements, 2 errors)
G  (Group, 2 errors)
  T  (Tank, 2 errors)
    ok     Note:
    error  Füllstand: 120  <- must be at most 100
    ok     Mode: manual
    hidden Set point: 300
    ok     Summary: 120 %
    ok     Number of limits: 2
    ok     Limits: 2
            0: Limit  (1 error)
              error  High: 101  <- must be at most 100
            1: Limit  (no errors)
              ok     High: 5
)",
                                                      ""}));
}

TEST_F(SkillbenchShow, KeepsValuesOnTheirLines) {
    write("plant.json", R"({"children": [{"tank": {"name": "T", "note": "a\nb\u001b[0m"}}]})");
    EXPECT_THAT(runOn("show", {"plant.json"}).out, HasSubstr("Note: a\\nb\\u001b[0m\n"));
}

TEST_F(SkillbenchShow, PrintsTheTreeForPrograms) {
    write("plant.json", R"({"children": [{"group": {"name": "G",
        "UUID": "10000000-0000-4000-8000-000000000001", "children": [
        {"tank": {"name": "[T.1]", "UUID": "10000000-0000-4000-8000-000000000002",
                  "note": "a\nb", "level": 120, "limits": [7]}}]}}]})");
    EXPECT_EQ(runOn("show", {"plant.json", "--json"}), (Outcome{0,
                                                                R"({
  "configuration": "plant.json",
  "loaded": true,
  "complete": true,
  "problems": [
    {
      "file": "plant.json",
      "line": 3,
      "column": 10,
      "severity": "error",
      "text": "G.[T.1].level: must be at most 100",
      "element": "G.[T.1]",
      "property": "level"
    }
  ],
  "elementCount": 2,
  "errorCount": 1,
  "elements": [
    {
      "name": "G",
      "key": "G",
      "uuid": "10000000-0000-4000-8000-000000000001",
      "class": "group",
      "type": "Group",
      "errorCount": 1,
      "properties": [],
      "children": [
        {
          "name": "[T.1]",
          "key": "G.[T.1]",
          "uuid": "10000000-0000-4000-8000-000000000002",
          "class": "tank",
          "type": "Tank",
          "errorCount": 1,
          "properties": [
            {
              "name": "note",
              "displayName": "Note",
              "editor": "text",
              "value": "a\nb",
              "visible": true
            },
            {
              "name": "level",
              "displayName": "Füllstand",
              "editor": "number",
              "value": "120",
              "visible": true,
              "error": "must be at most 100"
            },
            {
              "name": "mode",
              "displayName": "Mode",
              "editor": "choice",
              "value": "manual",
              "visible": true,
              "choices": [
                "manual",
                "automatic"
              ]
            },
            {
              "name": "setPoint",
              "displayName": "Set point",
              "editor": "number",
              "value": "0",
              "visible": false
            },
            {
              "name": "summary",
              "displayName": "Summary",
              "editor": "text",
              "value": "120 %",
              "visible": true
            },
            {
              "name": "limitCount",
              "displayName": "Number of limits",
              "editor": "number",
              "value": "1",
              "visible": true
            },
            {
              "name": "limits",
              "displayName": "Limits",
              "editor": "list",
              "value": "1",
              "visible": true,
              "rows": [
                {
                  "displayName": "Limit",
                  "errorCount": 0,
                  "properties": [
                    {
                      "name": "high",
                      "displayName": "High",
                      "editor": "number",
                      "value": "7",
                      "visible": true
                    }
                  ]
                }
              ]
            }
          ],
          "children": []
        }
      ]
    }
  ]
}
)",
                                                                ""}));
}

TEST_F(SkillbenchShow, TellsProgramsOfAConfigurationThatCannotBeLoaded) {
    write("plant.json", "{\"children\": 5}");
    EXPECT_EQ(runOn("show", {"plant.json", "--json"}), (Outcome{1,
                                                                R"({
  "configuration": "plant.json",
  "loaded": false,
  "complete": false,
  "problems": [
    {
      "file": "plant.json",
      "line": 1,
      "column": 14,
      "severity": "error",
      "text": "expected an array, found a number"
    }
  ]
}
)",
                                                                ""}));
}

TEST_F(SkillbenchShow, PrintsTheProblemsOfTheLoadAndShowsWhatIsThere) {
    write("plant.json", "{\"children\": [\n{\"gauge\": {\"name\": \"G\", \"tank\": \"T\"}}]}");
    EXPECT_EQ(runOn("show", {"plant.json"}),
              (Outcome{0,
                       "plant.json  (1 element, 1 error)\n"
                       "G  (Gauge, 1 error)\n"
                       "  error  Tank: T  <- the element “T” does not exist\n"
                       "  ok     Source:\n",
                       "plant.json:2:33: error: the element “T” does not exist\n"}));
}

TEST_F(SkillbenchShow, ShowsNothingOfAConfigurationThatCannotBeLoaded) {
    write("plant.json", "{\"children\": [\n{\"tank\": {\"name\": \"T\"}},\n{\"pump\": {}}]}");
    EXPECT_EQ(runOn("show", {"plant.json"}),
              (Outcome{1, "", "plant.json:3:2: error: unknown element class “pump”\n"}));
}

TEST_F(SkillbenchShow, KeepsGoingWhenAskedTo) {
    write("plant.json",
          "{\"children\": [\n{\"pump\": {}},\n{\"tank\": {\"name\": \"T\"}},\n{\"pump\": {}}]}");
    const Outcome outcome = runOn("show", {"plant.json", "--keep-going"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.out,
                StartsWith("plant.json  (1 element, no errors)\nT  (Tank, no errors)\n"));
    EXPECT_EQ(outcome.err, "plant.json:2:2: error: unknown element class “pump”\n"
                           "plant.json:4:2: error: unknown element class “pump”\n");
}

TEST_F(SkillbenchShow, OpensFilesWithOtherThanAsciiNames) {
    writePlant();
    std::filesystem::rename("plant.json", corvane::skillbench::pathOf("Öl Ω.json"));
    EXPECT_THAT(runOn("show", {"Öl Ω.json"}).out, StartsWith("Öl Ω.json  (4 elements, "));
}

TEST_F(SkillbenchShow, RefusesWhatIsNoConfigurationFile) {
    EXPECT_EQ(runOn("show", {"missing.json"}),
              (Outcome{2, "", "skillbench show: “missing.json” does not exist\n"}));
    EXPECT_EQ(runOn("show", {"."}),
              (Outcome{2, "", "skillbench show: “.” is a directory, not a configuration\n"}));
}

TEST_F(SkillbenchShow, NeedsSkillAndConfiguration) {
    writePlant();
    EXPECT_EQ(runWith({"show", "plant.json"}),
              (Outcome{2, "",
                       "skillbench show: --skill LIBRARY is missing; “skillbench show --help” "
                       "explains\n"}));
    EXPECT_EQ(runOn("show", {}),
              (Outcome{2, "",
                       "skillbench show: CONFIGURATION is missing; “skillbench show --help” "
                       "explains\n"}));
    EXPECT_EQ(runWith({"show", "--skill", "missing.so", "plant.json"}),
              (Outcome{2, "", "skillbench show: “missing.so” does not exist\n"}));
}

} // namespace
