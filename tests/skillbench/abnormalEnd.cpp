#include "abnormalEnd.hpp"

#include "ProgramFixture.hpp"

namespace {

using corvane::skillbench::test::Outcome;
using corvane::skillbench::test::SkillbenchProgram;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

constexpr std::string_view kFineElement =
    R"({"trouble": {"name": "Fine", "UUID": "20000000-0000-4000-8000-000000000001"}})";

class SkillbenchAbnormalEnd : public SkillbenchProgram {
protected:
    /// Runs a command on a configuration whose second element, on line 3, goes wrong.
    static Outcome run(const std::string& command, const std::string& where, const std::string& how,
                       const std::string& options = {}) {
        write("plant.json", "{\"children\": [\n" + std::string(kFineElement) +
                                ",\n{\"trouble\": {\"name\": \"Bad\", \"where\": \"" + where +
                                "\", \"how\": \"" + how + "\"}}]}");
        return runProgram(command + " --skill " + inShell(CORVANE_TEST_TROUBLE_SKILL) + " " +
                          options + " plant.json");
    }
    /// What is said first; a sanitizer may have more to say.
    static std::string firstLine(const Outcome& outcome) {
        return outcome.err.substr(0, outcome.err.find('\n'));
    }
    /// That the program must have ended there, and what it must have said.
    static void expectEnd(const std::string& command, const std::string& where,
                          const std::string& how, const std::string& expected,
                          const std::string& options = {}) {
        SCOPED_TRACE(command + ' ' + where + ' ' + how);
        const Outcome outcome = run(command, where, how, options);
        EXPECT_NE(outcome.exitCode, 0);
        EXPECT_EQ(firstLine(outcome), "plant.json:3:2: error: the skill “troubles” ended the "
                                      "program by " +
                                          expected);
    }
};

TEST_F(SkillbenchAbnormalEnd, NamesTheWay) {
    expectEnd("check", "load", "segfault", "a segmentation fault while loading the element “Bad”");
    expectEnd("check", "load", "abort", "abort while loading the element “Bad”");
    expectEnd("check", "load", "exit", "exit while loading the element “Bad”");
    expectEnd("check", "load", "terminate", "std::terminate while loading the element “Bad”");
    expectEnd("check", "load", "throw where it must not",
              "std::terminate while loading the element “Bad”: boom");
}

TEST_F(SkillbenchAbnormalEnd, NamesTheOperation) {
    expectEnd("check", "configure", "segfault",
              "a segmentation fault while configuring the element “Bad”");
    expectEnd("check", "state", "segfault",
              "a segmentation fault while configuring the element “Bad”");
    expectEnd("show", "properties", "segfault",
              "a segmentation fault while listing the properties of the element “Bad”");
    expectEnd("show", "value", "segfault",
              "a segmentation fault while giving the value of the property “note” of the element "
              "“Bad”");
    expectEnd("save", "save", "segfault", "a segmentation fault while saving the element “Bad”");
    expectEnd("check", "destroy", "segfault",
              "a segmentation fault while destroying the element “Bad”");
    expectEnd("edit", "set", "segfault",
              "a segmentation fault while setting the property “note” of the element “Bad”",
              "--set Bad.note=x");
    expectEnd("edit", "new state", "segfault",
              "a segmentation fault while setting the property “note” of the element “Bad”",
              "--set Bad.note=x");
}

#ifndef _WIN32
TEST_F(SkillbenchAbnormalEnd, ReportsThatTheStackRanOut) {
    expectEnd("check", "load", "overflow", "a segmentation fault while loading the element “Bad”");
}
#endif

TEST_F(SkillbenchAbnormalEnd, MakesAFailureOfExit) {
    EXPECT_EQ(run("check", "load", "exit").exitCode, 1);
}

TEST_F(SkillbenchAbnormalEnd, ComesBehindTheWholeLinesOfTheOutput) {
    EXPECT_EQ(run("show", "value", "segfault").out, "plant.json  (2 elements, no errors)\n"
                                                    "Fine  (Trouble, no errors)\n"
                                                    "  ok     Note:\n"
                                                    "  ok     Target:\n"
                                                    "Bad  (Trouble, no errors)\n");
    EXPECT_THAT(run("show", "value", "exit").out, EndsWith("Bad  (Trouble, no errors)\n"));
    EXPECT_EQ(run("show", "value", "segfault", "--json").out, "");
}

TEST_F(SkillbenchAbnormalEnd, KeepsControlCharactersFromTheTerminal) {
    write("plant.json", R"({"children": [{"trouble": {"name": "a\nb", "where": "load",
        "how": "abort"}}]})");
    EXPECT_THAT(
        runProgram("check --skill " + inShell(CORVANE_TEST_TROUBLE_SKILL) + " plant.json").err,
        HasSubstr("the element “a?b”"));
}

TEST_F(SkillbenchAbnormalEnd, LeavesNoTemporaryFileBehind) {
    for (const char* how : {"segfault", "abort", "exit", "terminate", "interrupt"}) {
        SCOPED_TRACE(how);
        EXPECT_NE(run("save", "save", how, "-o saved.json").exitCode, 0);
        for (const auto& entry : std::filesystem::directory_iterator(".")) {
            EXPECT_THAT(entry.path().filename().string(), Not(EndsWith(".tmp")));
        }
        EXPECT_FALSE(std::filesystem::exists("saved.json"));
    }
}

} // namespace
