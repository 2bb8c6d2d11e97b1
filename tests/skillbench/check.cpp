#include "SkillbenchFixture.hpp"

#include <chrono>
#include <cstddef>

namespace {

using corvane::skillbench::test::Outcome;
using corvane::skillbench::test::runWith;
using corvane::skillbench::test::SkillbenchTest;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

class SkillbenchCheck : public SkillbenchTest {
protected:
    /// The check of a configuration with that text.
    static Outcome checkText(std::string_view text) {
        write("plant.json", text);
        return runOn("check", {"plant.json"});
    }
};

TEST_F(SkillbenchCheck, FindsNothingWrong) {
    writePlant();
    EXPECT_EQ(runOn("check", {"plant.json"}),
              (Outcome{0, "plant.json: 4 elements, no problems\n", ""}));
}

TEST_F(SkillbenchCheck, PrintsAllKindsOfProblemsInTheOrderOfTheFile) {
    EXPECT_EQ(checkText("{\"children\": [\n"
                        "  {\"tank\": {\"name\": \"T\", \"level\": 101, \"limits\": [1, 102]}},\n"
                        "  {\"gauge\": {\"name\": \"A\", \"tank\": \"T.x\",\n"
                        "     \"source\": \"T.pressure\"}},\n"
                        "  {\"tank\": {\"name\": \"U\", \"level\": 103}}\n"
                        "]}"),
              (Outcome{1,
                       "plant.json:2:4: error: T.level: must be at most 100\n"
                       "plant.json:2:4: error: T.limits.1.high: must be at most 100\n"
                       "plant.json:3:35: error: the element “T” does not have a child named “x”\n"
                       "plant.json:4:16: error: the element “T” does not have an attribute named "
                       "“pressure”\n"
                       "plant.json:5:4: error: U.level: must be at most 100\n",
                       ""}));
}

TEST_F(SkillbenchCheck, DoesNotMindInvisibleProperties) {
    EXPECT_EQ(checkText(R"({"children": [{"tank": {"name": "T", "setPoint": 300}}]})").exitCode, 0);
}

TEST_F(SkillbenchCheck, WarningsAloneAreNoFailure) {
    EXPECT_EQ(checkText("{\"children\": [\n{\"gauge\": {\"name\": \"A\", \"tank\": \"A\"}}]}"),
              (Outcome{0, "plant.json:2:33: warning: the element “A” refers to itself\n", ""}));
}

TEST_F(SkillbenchCheck, StopsAtTheFirstPartThatCannotBeLoadedUnlessAskedToGoOn) {
    constexpr std::string_view kText = "{\"children\": [\n"
                                       "{\"tank\": {\"name\": \"T\", \"speed\": 1}},\n"
                                       "{\"tank\": {\"name\": \"U\", \"level\": \"high\"}},\n"
                                       "{\"tank\": {\"name\": \"V\", \"level\": 101}}]}";
    EXPECT_EQ(checkText(kText),
              (Outcome{1, "plant.json:2:24: error: unknown parameter \"speed\"\n", ""}));
    EXPECT_EQ(runOn("check", {"--keep-going", "plant.json"}),
              (Outcome{1,
                       "plant.json:2:24: error: unknown parameter \"speed\"\n"
                       "plant.json:3:33: error: expected a number, found a string\n"
                       "plant.json:4:2: error: V.level: must be at most 100\n",
                       ""}));
}

TEST_F(SkillbenchCheck, LocatesWhatIsWrongWithTheText) {
    EXPECT_THAT(checkText("").out, StartsWith("plant.json:1:1: error: JSON syntax error: "));
    EXPECT_THAT(checkText(" \n \n").out, StartsWith("plant.json:"));
    EXPECT_THAT(checkText("{\"children\": [\n{\"tank\": {\"name\":").out,
                StartsWith("plant.json:2:"));
    EXPECT_THAT(checkText("[]").out,
                StartsWith("plant.json:1:1: error: expected an object, found an array\n"));
    EXPECT_THAT(checkText("{\"children\": [\n{\"tank\": {\"name\": \"\xC3\"}}]}").out,
                StartsWith("plant.json:2:"));
    EXPECT_THAT(checkText("{\"children\": [{\"tank\": {\"name\": \"a\",\n\"name\": \"b\"}}]}").out,
                StartsWith("plant.json:2:1: error: duplicate member \"name\""));
    EXPECT_THAT(
        checkText("{\"children\":\n" + std::string(512, '[') + std::string(512, ']') + "}").out,
        StartsWith("plant.json:2:512: error: "));
    EXPECT_THAT(checkText("{\"children\": [{\"tank\":\n{\"name\": \"a\", \"level\": 1e400}}]}").out,
                StartsWith("plant.json:2:"));
}

TEST_F(SkillbenchCheck, ResolvesImportReferencesOnRequest) {
    write("plant.json", "{\"children\": [\n"
                        "{\"tank\": {\"name\": \"T\"}},\n"
                        "{\"gauge\": {\"name\": \"G\", \"tank\": \".import:T\"}}]}");
    EXPECT_EQ(runOn("check", {"plant.json"}),
              (Outcome{1,
                       "plant.json:3:2: error: G.tank: internal error: unresolved cross reference "
                       "from import\n",
                       ""}));
    EXPECT_EQ(runOn("check", {"plant.json", "--resolve-imports"}),
              (Outcome{0, "plant.json: 2 elements, no problems\n", ""}));
}

TEST_F(SkillbenchCheck, ReadsFilesWithWindowsLineEnds) {
    EXPECT_EQ(
        checkText("{\"children\": [\r\n{\"tank\": {\"name\": \"T\", \"level\": 101}}\r\n]}").out,
        "plant.json:2:2: error: T.level: must be at most 100\n");
}

TEST_F(SkillbenchCheck, TellsPrograms) {
    write("plant.json", "{\"children\": [\n"
                        "  {\"gauge\": {\"name\": \"A\", \"tank\": \"A\"}},\n"
                        "  {\"tank\": {\"name\": \"Öl\", \"level\": 101}}]}");
    EXPECT_EQ(runOn("check", {"plant.json", "--json"}), (Outcome{1,
                                                                 R"({
  "configuration": "plant.json",
  "loaded": true,
  "complete": true,
  "errors": 1,
  "warnings": 1,
  "problems": [
    {
      "file": "plant.json",
      "line": 2,
      "column": 35,
      "severity": "warning",
      "text": "the element “A” refers to itself"
    },
    {
      "file": "plant.json",
      "line": 3,
      "column": 4,
      "severity": "error",
      "text": "Öl.level: must be at most 100",
      "element": "Öl",
      "property": "level"
    }
  ]
}
)",
                                                                 ""}));
}

TEST_F(SkillbenchCheck, TellsProgramsThatPartsAreMissing) {
    write("plant.json", "{\"children\": [{\"pump\": {}}]}");
    const Outcome outcome = runOn("check", {"plant.json", "--json", "--keep-going"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_THAT(outcome.out, HasSubstr("\"loaded\": true,\n  \"complete\": false,\n"));
}

TEST_F(SkillbenchCheck, RefusesWhatItCannotOpen) {
    EXPECT_EQ(runOn("check", {"missing.json"}),
              (Outcome{2, "", "skillbench check: “missing.json” does not exist\n"}));
    EXPECT_EQ(runOn("check", {"."}),
              (Outcome{2, "", "skillbench check: “.” is a directory, not a configuration\n"}));
    EXPECT_EQ(runOn("check", {"plant.json", "--strict"}),
              (Outcome{2, "",
                       "skillbench check: there is no option “--strict”; “skillbench check --help” "
                       "explains\n"}));
}

TEST_F(SkillbenchCheck, ShowsTheProgressOfALongLoadOnATerminalOnly) {
    writePlant();
    const std::vector<std::string> arguments{"check", "--skill", skillLibrary(), "plant.json"};
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    // Every load takes longer than no time at all.
    constexpr std::chrono::milliseconds kNoTime(0);
    EXPECT_EQ(corvane::skillbench::run(arguments, {in, out, err, kNoTime}), 0);
    EXPECT_THAT(err.str(), HasSubstr("\relements   0"));
    EXPECT_THAT(err.str(), HasSubstr("\rproperties [##############################] 100 %"));
    EXPECT_THAT(err.str(), MatchesRegex(".*\r +\r"));
    EXPECT_EQ(out.str(), "plant.json: 4 elements, no problems\n");

    EXPECT_EQ(runWith(arguments).err, "");
}

TEST_F(SkillbenchCheck, ShowsNoProgressOfAShortLoad) {
    writePlant();
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(corvane::skillbench::run({{"check", "--skill", skillLibrary(), "plant.json"}},
                                       {in, out, err, std::chrono::hours(1)}),
              0);
    EXPECT_EQ(err.str(), "");
}

TEST_F(SkillbenchCheck, ReadsTheStandardInput) {
    EXPECT_EQ(runWith({"check", "--skill", skillLibrary(), "-"},
                      "{\"children\": [\n{\"tank\": {\"name\": \"T\", \"level\": 101}}]}"),
              (Outcome{1, "-:2:2: error: T.level: must be at most 100\n", ""}));
    EXPECT_EQ(runWith({"check", "--skill", skillLibrary(), "--keep-going", "-"},
                      "{\"children\": [{\"pump\": {}}, {\"tank\": {\"name\": \"T\"}}]}")
                  .out,
              "-:1:16: error: unknown element class “pump”\n");
}

} // namespace
