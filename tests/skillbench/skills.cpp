#include "SkillbenchFixture.hpp"

namespace {

using corvane::skillbench::test::Outcome;
using corvane::skillbench::test::runWith;
using corvane::skillbench::test::SkillbenchTest;
using testing::HasSubstr;
using testing::StartsWith;

class SkillbenchSkills : public SkillbenchTest {};

TEST_F(SkillbenchSkills, ListsSkillsAndTheirElementClasses) {
    EXPECT_EQ(runWith({"skills", skillLibrary()}), (Outcome{0,
                                                            "tanks 2.1  Behälter\n"
                                                            "  group  element group  Group\n"
                                                            "  tank   device         Tank\n"
                                                            "  gauge  data point     Gauge\n",
                                                            ""}));
}

TEST_F(SkillbenchSkills, ListsALibraryThatIsNamedTwiceOnce) {
    EXPECT_EQ(runWith({"skills", skillLibrary(), skillLibrary()}),
              runWith({"skills", skillLibrary()}));
}

TEST_F(SkillbenchSkills, ListsThemForPrograms) {
    const Outcome outcome = runWith({"skills", "--json", skillLibrary()});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_THAT(outcome.out, StartsWith(R"({
  "skills": [
    {
      "id": "tanks",
      "version": "2.1",
      "displayName": "Behälter",
      "elementClasses": [
        {
          "id": "group",
          "uuid": "00000000-0000-0000-0000-000000000001",
          "category": "element group",
          "displayName": "Group",
          "description": "A Group for tests."
        },
)"));
}

TEST_F(SkillbenchSkills, NeedsALibrary) {
    EXPECT_EQ(runWith({"skills"}),
              (Outcome{2, "",
                       "skillbench skills: LIBRARY is missing; “skillbench skills --help” "
                       "explains\n"}));
}

TEST_F(SkillbenchSkills, RefusesWhatIsNoSkillLibrary) {
    EXPECT_EQ(runWith({"skills", "missing.so"}),
              (Outcome{2, "", "skillbench skills: “missing.so” does not exist\n"}));
    EXPECT_EQ(runWith({"skills", "."}),
              (Outcome{2, "", "skillbench skills: “.” is a directory, not a skill library\n"}));
    EXPECT_EQ(runWith({"skills", noSkillLibrary()}),
              (Outcome{2, "",
                       "skillbench skills: “" + noSkillLibrary() +
                           "” is a library but holds no skill\n"}));
    write("text.so", "no library");
    const Outcome outcome = runWith({"skills", "text.so"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.err,
                StartsWith("skillbench skills: “text.so” is no library that can be loaded: "));
}

TEST_F(SkillbenchSkills, PrintsNothingWhenOneOfTheLibrariesIsRefused) {
    EXPECT_EQ(runWith({"skills", skillLibrary(), "missing.so"}),
              (Outcome{2, "", "skillbench skills: “missing.so” does not exist\n"}));
}

} // namespace
