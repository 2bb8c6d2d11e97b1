// What is said when a skill throws.

#include "SkillbenchFixture.hpp"

namespace {

using corvane::skillbench::test::Outcome;
using corvane::skillbench::test::runWith;
using corvane::skillbench::test::SkillbenchTest;
using testing::EndsWith;

class SkillbenchSkillFailure : public SkillbenchTest {
protected:
    /// Runs a command on a configuration whose element below another goes wrong.
    static Outcome run(const std::string& command, const std::string& where, const std::string& how,
                       const std::vector<std::string>& options = {}) {
        write("plant.json", "{\"children\": [{\"trouble\": {\"name\": \"Top\", "
                            "\"UUID\": \"20000000-0000-4000-8000-000000000001\", \"children\": [\n"
                            "{\"trouble\": {\"name\": \"Bad\", \"where\": \"" +
                                where + "\", \"how\": \"" + how + "\"}}]}}]}");
        std::vector<std::string> arguments{command, "plant.json", "--skill",
                                           CORVANE_TEST_TROUBLE_SKILL};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return runWith(arguments);
    }
};

constexpr const char* kNumber = "throw a number";
constexpr const char* kPlace = "plant.json:2:2: error: ";

TEST_F(SkillbenchSkillFailure, OfALoadIsOneOfTheFile) {
    EXPECT_EQ(run("check", "load", "throw"), (Outcome{1, "plant.json:2:1: error: boom\n", ""}));
    EXPECT_EQ(run("check", "load", kNumber),
              (Outcome{1,
                       std::string(kPlace) +
                           "the skill “troubles” failed while loading the element “Top.Bad”: it "
                           "threw something that is no std::exception\n",
                       ""}));
}

TEST_F(SkillbenchSkillFailure, OfAFactoryNamesTheClass) {
    write("plant.json", "{\"children\": [\n{\"stillborn\": {\"name\": \"S\"}}]}");
    EXPECT_EQ(runWith({"check", "--skill", CORVANE_TEST_TROUBLE_SKILL, "plant.json"}),
              (Outcome{1,
                       std::string(kPlace) +
                           "the skill “troubles” failed while making an element of the class "
                           "“stillborn”: it threw something that is no std::exception\n",
                       ""}));
}

TEST_F(SkillbenchSkillFailure, OfAConfigurationNamesTheElement) {
    EXPECT_EQ(
        run("check", "configure", "throw"),
        (Outcome{
            1, std::string(kPlace) + "the element “Top.Bad” cannot describe its properties: boom\n",
            ""}));
    EXPECT_EQ(run("check", "configure", kNumber),
              (Outcome{1,
                       std::string(kPlace) +
                           "the element “Top.Bad” cannot describe its properties: the skill "
                           "“troubles” failed while configuring the element “Top.Bad”: it threw "
                           "something that is no std::exception\n",
                       ""}));
}

TEST_F(SkillbenchSkillFailure, OfSavingNamesTheElement) {
    EXPECT_EQ(run("save", "save", "throw"),
              (Outcome{1, "",
                       std::string(kPlace) +
                           "the skill “troubles” failed while saving the element “Top.Bad”: boom\n"
                           "skillbench save: nothing was saved\n"}));
    EXPECT_EQ(run("save", "save", kNumber).err,
              std::string(kPlace) +
                  "the skill “troubles” failed while saving the element “Top.Bad”: it threw "
                  "something that is no std::exception\n"
                  "skillbench save: nothing was saved\n");
}

TEST_F(SkillbenchSkillFailure, OfAValueEndsTheTreeBehindAWholeLine) {
    EXPECT_EQ(run("show", "value", "throw"),
              (Outcome{1,
                       "plant.json  (2 elements, no errors)\n"
                       "Top  (Trouble, no errors)\n"
                       "  ok     Note:\n"
                       "  ok     Target:\n"
                       "  Bad  (Trouble, no errors)\n",
                       std::string(kPlace) +
                           "the skill “troubles” failed while giving the value of the property "
                           "“note” of the element “Top.Bad”: boom\n"}));
    EXPECT_EQ(run("show", "value", kNumber, {"--json"}),
              (Outcome{1, "",
                       std::string(kPlace) +
                           "the skill “troubles” failed while giving the value of the property "
                           "“note” of the element “Top.Bad”: it threw something that is no "
                           "std::exception\n"}));
}

TEST_F(SkillbenchSkillFailure, OfTheListOfPropertiesNamesTheElement) {
    EXPECT_EQ(run("show", "properties", "throw").err,
              std::string(kPlace) + "the skill “troubles” failed while listing the properties of "
                                    "the element “Top.Bad”: boom\n");
}

TEST_F(SkillbenchSkillFailure, OfSettingAPropertyNamesIt) {
    const std::vector<std::string> edit{"--set", "Top.Bad.note=x", "-o", "out.json"};
    EXPECT_EQ(run("edit", "set", "throw", edit).err,
              std::string(kPlace) + "the skill “troubles” failed while setting the property "
                                    "“note” of the element “Top.Bad”: boom\n");
    EXPECT_EQ(run("edit", "set", kNumber, edit).exitCode, 1);
    EXPECT_THAT(run("edit", "new state", "throw", edit).err, EndsWith("“Top.Bad”: boom\n"));
    EXPECT_FALSE(std::filesystem::exists("out.json"));
}

TEST_F(SkillbenchSkillFailure, OfFollowingAReferenceNamesTheElementThatHoldsIt) {
    write("plant.json", "{\"children\": [{\"trouble\": {\"name\": \"A\"}},\n"
                        "{\"trouble\": {\"name\": \"B\", \"target\": \"A\", \"where\": "
                        "\"lost target\", \"how\": \"throw\"}}]}");
    EXPECT_EQ(runWith({"edit", "--skill", CORVANE_TEST_TROUBLE_SKILL, "plant.json", "--remove", "A",
                       "-o", "out.json"})
                  .err,
              std::string(kPlace) + "the skill “troubles” failed while following a change of a "
                                    "reference of the element “B”: boom\n");
    EXPECT_FALSE(std::filesystem::exists("out.json"));
}

} // namespace
