#include "SkillbenchFixture.hpp"

namespace {

using corvane::skillbench::test::Outcome;
using corvane::skillbench::test::SkillbenchTest;

class SkillbenchReferences : public SkillbenchTest {};

TEST_F(SkillbenchReferences, ListsWhoRefersToAnElementAndItsMembers) {
    writePlant();
    EXPECT_EQ(runOn("references", {"plant.json", "Werk.[Tank 1.5]"}),
              (Outcome{0,
                       "Gauge.tank → Werk.[Tank 1.5]\n"
                       "Gauge.source → Werk.[Tank 1.5].level\n",
                       ""}));
}

TEST_F(SkillbenchReferences, ListsThemInTheOrderOfTheTree) {
    write("plant.json", R"({"children": [
        {"gauge": {"name": "B", "tank": "T"}},
        {"group": {"name": "G", "children": [{"gauge": {"name": "C", "source": "T.level"}}]}},
        {"tank": {"name": "T"}},
        {"gauge": {"name": "A", "tank": "T"}}]})");
    EXPECT_EQ(runOn("references", {"plant.json", "T"}).out, "B.tank → T\n"
                                                            "G.C.source → T.level\n"
                                                            "A.tank → T\n");
}

TEST_F(SkillbenchReferences, SaysWhenNothingRefersToAnElement) {
    writePlant();
    EXPECT_EQ(runOn("references", {"plant.json", "Werk.Öl"}),
              (Outcome{0, "nothing refers to Werk.Öl\n", ""}));
    EXPECT_EQ(runOn("references", {"plant.json", ""}),
              (Outcome{0, "nothing refers to (root)\n", ""}));
}

TEST_F(SkillbenchReferences, NeedsAnElementThatExists) {
    writePlant();
    EXPECT_EQ(runOn("references", {"plant.json", "Werk.Wasser"}),
              (Outcome{1, "", "skillbench references: there is no element “Werk.Wasser”\n"}));
    EXPECT_EQ(runOn("references", {"plant.json"}),
              (Outcome{2, "",
                       "skillbench references: KEY is missing; “skillbench references --help” "
                       "explains\n"}));
}

TEST_F(SkillbenchReferences, NeedsAConfigurationThatCanBeLoaded) {
    write("plant.json", "[]");
    EXPECT_EQ(runOn("references", {"plant.json", "T"}),
              (Outcome{1, "", "plant.json:1:1: error: expected an object, found an array\n"}));
}

} // namespace
