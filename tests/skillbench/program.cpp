// Runs the program itself, as a shell does.

#include "SkillbenchFixture.hpp"
#include <corvane/utils/string/transcode.hpp>

#include <cstdlib>

namespace {

using corvane::skillbench::test::SkillbenchTest;

class SkillbenchProgram : public SkillbenchTest {
protected:
    /// Runs the program with the arguments as they stand in a shell's line and its output in a
    /// file; returns whether it ended with the exit code 0.
    static bool succeeds(const std::string& arguments) {
        const std::string command =
            "\"" CORVANE_SKILLBENCH "\" " + arguments + " >out.txt 2>err.txt";
#ifdef _WIN32
        // The shell takes the outer quotes away.
        return _wsystem(corvane::utils::string::toWide("\"" + command + "\"").c_str()) == 0;
#else
        return std::system(command.c_str()) == 0;
#endif
    }
};

TEST_F(SkillbenchProgram, TakesAndPrintsUtf8) {
    writePlant();
    std::filesystem::rename("plant.json", corvane::skillbench::pathOf("Öl Ω.json"));
    EXPECT_TRUE(succeeds("check --skill \"" + skillLibrary() + "\" \"Öl Ω.json\""));
    EXPECT_EQ(read("out.txt"), "Öl Ω.json: 4 elements, no problems\n");
    EXPECT_EQ(read("err.txt"), "");
}

TEST_F(SkillbenchProgram, PrintsWhatIsWrongToTheErrorStream) {
    EXPECT_FALSE(succeeds("tüpe uuid 1"));
    EXPECT_EQ(read("out.txt"), "");
    EXPECT_EQ(read("err.txt"),
              "skillbench: there is no command “tüpe”; “skillbench --help” lists them\n");
}

} // namespace
