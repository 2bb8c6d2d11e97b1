#include "SkillbenchFixture.hpp"

namespace {

using corvane::skillbench::test::Outcome;
using corvane::skillbench::test::runWith;
using testing::HasSubstr;

TEST(SkillbenchRun, NeedsACommand) {
    EXPECT_EQ(
        runWith({}),
        (Outcome{2, "", "skillbench: a command is missing; “skillbench --help” lists them\n"}));
}

TEST(SkillbenchRun, RefusesOtherCommands) {
    EXPECT_EQ(runWith({"shw", "x"}),
              (Outcome{2, "",
                       "skillbench: there is no command “shw”; “skillbench --help” lists them\n"}));
}

TEST(SkillbenchRun, ListsItsCommands) {
    for (const char* option : {"--help", "-h"}) {
        const Outcome outcome = runWith({option});
        EXPECT_EQ(outcome.exitCode, 0);
        EXPECT_EQ(outcome.err, "");
        for (const char* command :
             {"skills", "show", "check", "save", "edit", "references", "type"}) {
            EXPECT_THAT(outcome.out, HasSubstr("\n  " + std::string(command) + " "));
        }
    }
}

TEST(SkillbenchRun, EachCommandExplainsItself) {
    for (const char* command : {"skills", "show", "check", "save", "edit", "references", "type"}) {
        const Outcome outcome = runWith({command, "--help"});
        EXPECT_EQ(outcome.exitCode, 0);
        EXPECT_EQ(outcome.err, "");
        EXPECT_THAT(outcome.out, HasSubstr("skillbench " + std::string(command) + " [OPTIONS]"));
    }
}

TEST(SkillbenchRun, SaysItsVersion) {
    const Outcome outcome = runWith({"--version"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_THAT(outcome.out, testing::MatchesRegex("skillbench .*\\..*\\..*\n"));
}

TEST(SkillbenchRun, SaysWhatIsWrongWithTheCommandLineAndWhereTheHelpIs) {
    EXPECT_EQ(runWith({"show", "a.json", "--jsn"}),
              (Outcome{2, "",
                       "skillbench show: there is no option “--jsn”; “skillbench show --help” "
                       "explains\n"}));
}

} // namespace
