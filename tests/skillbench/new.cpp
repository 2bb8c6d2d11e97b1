#include "SkillbenchFixture.hpp"
#include <corvane/utils/core/Uuid.hpp>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>

namespace {

using corvane::skillbench::test::Outcome;
using corvane::skillbench::test::runWith;
using corvane::skillbench::test::SkillbenchTest;
using corvane::utils::core::Uuid;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
namespace fs = std::filesystem;

class SkillbenchNew : public SkillbenchTest {
protected:
    /// The files below a folder, by their paths from there, sorted.
    static std::vector<std::string> filesIn(const fs::path& folder) {
        std::vector<std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            if (entry.is_regular_file()) {
                files.push_back(entry.path().lexically_relative(folder).generic_string());
            }
        }
        std::ranges::sort(files);
        return files;
    }

    static std::vector<std::string> uuidsIn(const std::string& text) {
        static const std::regex form("[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}");
        std::vector<std::string> uuids;
        for (auto match = std::sregex_iterator(text.begin(), text.end(), form);
             match != std::sregex_iterator(); ++match) {
            uuids.push_back(match->str());
        }
        return uuids;
    }
};

TEST_F(SkillbenchNew, WritesAWholeProjectAndSaysWhatToDoNext) {
    const Outcome outcome = runWith({"new", "line-mixer"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.out, "wrote the skill line-mixer to line-mixer; next:\n"
                           "  cd line-mixer\n"
                           "  cmake --preset release\n"
                           "  cmake --build --preset release\n"
                           "  ctest --preset release\n"
                           "  skillbench show --skill build/release/line-mixer" CORVANE_SKILL_SUFFIX
                           " configurations/example.json\n");
    EXPECT_THAT(filesIn("line-mixer"),
                ElementsAre(".gitignore", "CMakeLists.txt", "CMakePresets.json", "README.md",
                            "ci/run", "configurations/example.json", "src/Input.cpp",
                            "src/Input.hpp", "src/LineMixer.cpp", "src/LineMixer.hpp",
                            "src/names.hpp", "src/skill.cpp", "tests/CMakeLists.txt",
                            "tests/LineMixer.cpp"));
}

TEST_F(SkillbenchNew, MakesTheOtherNamesFromTheOneThatIsGiven) {
    ASSERT_EQ(runWith({"new", "line-mixer"}).exitCode, 0);
    EXPECT_THAT(read("line-mixer/src/skill.cpp"), HasSubstr("namespace line_mixer {"));
    EXPECT_THAT(read("line-mixer/src/skill.cpp"), HasSubstr(".id = \"LineMixer.LineMixer\""));
    EXPECT_THAT(read("line-mixer/CMakeLists.txt"), HasSubstr("corvane_add_skill(line-mixer"));
    ASSERT_EQ(runWith({"new", "HTTPGate2_x"}).exitCode, 0);
    EXPECT_THAT(read("HTTPGate2_x/src/skill.cpp"), HasSubstr("namespace httpgate2_x {"));
}

TEST_F(SkillbenchNew, TakesNamesForTheClassAndTheNamespaceAndAFolder) {
    const Outcome outcome =
        runWith({"new", "mixers", "--class", "Mixer", "--namespace", "plant", "--in", "a/b"});
    EXPECT_EQ(outcome.exitCode, 0);
    const std::string folder = fs::path("a/b/mixers").make_preferred().string();
    EXPECT_THAT(outcome.out, HasSubstr("  cd " + folder + "\n"));
    EXPECT_THAT(read("a/b/mixers/src/Mixer.hpp"), HasSubstr("namespace plant {"));
    EXPECT_THAT(read("a/b/mixers/src/Mixer.hpp"), HasSubstr("class Mixer final"));
    EXPECT_THAT(read("a/b/mixers/src/skill.cpp"), HasSubstr(".id = \"Mixers.Mixer\""));
}

TEST_F(SkillbenchNew, LeavesNoPlaceUnfilled) {
    ASSERT_EQ(runWith({"new", "mixer"}).exitCode, 0);
    const std::regex place("@[A-Z_]+@");
    for (const std::string& file : filesIn("mixer")) {
        EXPECT_FALSE(std::regex_search(read("mixer/" + file), place)) << file;
        EXPECT_THAT(read("mixer/" + file), EndsWith("\n")) << file;
    }
}

TEST_F(SkillbenchNew, MakesUuidsThatNobodyElseHas) {
    ASSERT_EQ(runWith({"new", "one"}).exitCode, 0);
    ASSERT_EQ(runWith({"new", "two"}).exitCode, 0);
    std::set<std::string> uuids;
    for (const char* const file : {"one/src/skill.cpp", "one/configurations/example.json",
                                   "two/src/skill.cpp", "two/configurations/example.json"}) {
        for (const std::string& uuid : uuidsIn(read(file))) {
            EXPECT_TRUE(Uuid::parse(uuid));
            uuids.insert(uuid);
        }
    }
    EXPECT_EQ(uuids.size(), 6U);
}

TEST_F(SkillbenchNew, LetsTheScriptBeRun) {
#ifdef _WIN32
    GTEST_SKIP() << "files need no permission to be run there";
#endif
    ASSERT_EQ(runWith({"new", "mixer"}).exitCode, 0);
    EXPECT_NE(fs::status("mixer/ci/run").permissions() & fs::perms::owner_exec, fs::perms::none);
}

TEST_F(SkillbenchNew, OverwritesNothing) {
    write("mixer", "mine");
    EXPECT_EQ(runWith({"new", "mixer"}),
              (Outcome{2, "", "skillbench new: “mixer” exists already\n"}));
    EXPECT_EQ(read("mixer"), "mine");
    fs::create_directory("pump");
    EXPECT_EQ(runWith({"new", "pump"}).exitCode, 2);
    EXPECT_TRUE(fs::is_empty("pump"));
}

TEST_F(SkillbenchNew, RefusesNamesThatCannotBeUsed) {
    const auto refusal = [](const std::vector<std::string>& names) {
        std::vector<std::string> arguments{"new"};
        arguments.insert(arguments.end(), names.begin(), names.end());
        const Outcome outcome = runWith(arguments);
        EXPECT_EQ(outcome.exitCode, 2);
        return outcome.err;
    };
    for (const char* const name : {"", "../mixer", "2mixer", "mi xer", "mixér"}) {
        EXPECT_THAT(refusal({name}), HasSubstr("cannot be the name of a project: it is made of "
                                               "letters, digits, “-” and “_”, and begins with a "
                                               "letter"));
    }
    EXPECT_THAT(refusal({"a", "--class", "mixer"}),
                HasSubstr("“mixer” cannot be the name of an element class: it is made of letters "
                          "and digits, and begins with a capital letter"));
    EXPECT_THAT(refusal({"input"}),
                HasSubstr("“Input” is the class of the rows; choose another name with --class"));
    EXPECT_THAT(refusal({"a", "--namespace", "A"}),
                HasSubstr("“A” cannot be the name of a namespace: it is made of lower-case "
                          "letters, digits and “_”, and begins with a letter"));
    EXPECT_THAT(refusal({"register"}), HasSubstr("“register” means something else in C++; choose "
                                                 "another name with --namespace"));
    EXPECT_TRUE(fs::is_empty("."));
}

TEST_F(SkillbenchNew, SaysWhereAFolderCannotBeMade) {
    write("file", "");
    const Outcome outcome = runWith({"new", "mixer", "--in", "file"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.err, HasSubstr("file"));
}

} // namespace
