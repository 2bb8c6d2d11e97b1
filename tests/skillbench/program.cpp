#include "ProgramFixture.hpp"

namespace {

using corvane::skillbench::test::Outcome;
using corvane::skillbench::test::SkillbenchProgram;

TEST_F(SkillbenchProgram, TakesAndPrintsUtf8) {
    writePlant();
    std::filesystem::rename("plant.json", corvane::skillbench::pathOf("Öl Ω.json"));
    EXPECT_EQ(runProgram("check --skill " + inShell(skillLibrary()) + " \"Öl Ω.json\""),
              (Outcome{0, "Öl Ω.json: 4 elements, no problems\n", ""}));
}

TEST_F(SkillbenchProgram, PrintsWhatIsWrongToTheErrorStream) {
    EXPECT_EQ(
        runProgram("tüpe uuid 1"),
        (Outcome{2, "",
                 "skillbench: there is no command “tüpe”; “skillbench --help” lists them\n"}));
}

TEST_F(SkillbenchProgram, ReadsAndWritesTheStandardStreams) {
    writePlant();
    const std::string skill = " --skill " + inShell(skillLibrary()) + " ";
    ASSERT_EQ(runProgram("save" + skill + "plant.json -o saved.json").exitCode, 0);
    const Outcome saved = runProgram("save" + skill + "- <plant.json");
    EXPECT_EQ(saved, (Outcome{0, read("saved.json"), "saved 4 elements to the standard output\n"}));
}

} // namespace
