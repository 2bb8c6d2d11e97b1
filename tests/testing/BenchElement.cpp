#include "BenchTest.hpp"
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/testing/Refused.hpp>

#include <stdexcept>

namespace corvane::tests {

namespace {

using BenchElementTest = BenchTest;

TEST_F(BenchElementTest, ListsItsSettingsInTheOrderOfTheForm) {
    main.at("steps").insertRow(0);
    EXPECT_THAT(main.settings(), ElementsAre("drive", "topSpeed", "summary", "leader", "steps"));
}

TEST_F(BenchElementTest, NamesTheMembersThatItAdds) {
    EXPECT_THAT(main.attributes(), ElementsAre("speed"));
    EXPECT_THAT(main.events(), ElementsAre("stopped"));
    EXPECT_THAT(main.tasks(), ElementsAre("stop"));
}

TEST_F(BenchElementTest, SavesItsSettingsAlone) {
    EXPECT_EQ(main.saved(), R"({"drive":"fixed","topSpeed":1500,"leader":"","steps":[]})");
}

TEST_F(BenchElementTest, GetsAChildWithTheNameOfItsClass) {
    EXPECT_EQ(main.add("Test.Mixer").key(), "main.Mixer");
    EXPECT_EQ(main.add("Test.Mixer").key(), "main.Mixer 2");
}

TEST_F(BenchElementTest, CountsTheErrorsBelowIt) {
    const BenchElement child = main.add("Test.Mixer", "child");
    child.at("leader").set("nobody.speed");
    EXPECT_EQ(main.errorCount(), 1U);
    EXPECT_EQ(child.errorCount(), 1U);
}

TEST_F(BenchElementTest, IsFollowedThroughRenamesAndMoves) {
    const BenchElement second = bench.add("Test.Mixer", "second");
    second.rename("2nd");
    EXPECT_EQ(second.key(), "2nd");
    second.moveTo("main");
    EXPECT_EQ(second.key(), "main.2nd");
    second.moveTo("");
    EXPECT_EQ(second.key(), "2nd");
}

TEST_F(BenchElementTest, KnowsWhoRefersToItOrItsMembers) {
    const BenchElement second = bench.add("Test.Mixer", "second");
    const BenchElement third = bench.add("Test.Mixer", "third");
    third.at("leader").set("main.speed");
    second.at("leader").set("main.speed");
    EXPECT_THAT(main.referrers(), ElementsAre("second.leader", "third.leader"));
    second.at("leader").set("");
    EXPECT_THAT(main.referrers(), ElementsAre("third.leader"));
}

TEST_F(BenchElementTest, TakesItsReferencesAlongAndLeavesThemDangling) {
    const BenchElement second = bench.add("Test.Mixer", "second");
    second.at("leader").set("main.speed");
    main.rename("first");
    EXPECT_THAT(bench, Announced(R"(
        renamed     main → first
        new key     second.leader: first.speed
        value       second.leader: first.speed)"));
    main.remove();
    EXPECT_THAT(second.at("leader"), HasText("first.speed"));
    EXPECT_THAT(second.at("leader"), HasError("the element “first” does not exist"));
}

TEST_F(BenchElementTest, SaysWhyItCannotBeEdited) {
    const BenchElement child = main.add("Test.Mixer", "child");
    EXPECT_EQ(messageOf<Refused>([&] { child.rename("a.b"); }),
              "the element name “a.b” contains “.” and must be enclosed in brackets");
    EXPECT_THAT(messageOf<Refused>([&] { main.moveTo("main.child"); }), Not(IsEmpty()));
    EXPECT_EQ(child.key(), "main.child");
}

TEST_F(BenchElementTest, SaysThatItIsGone) {
    main.remove();
    EXPECT_FALSE(bench.has("main"));
    EXPECT_EQ(messageOf<std::out_of_range>([&] { static_cast<void>(main.key()); }),
              "the element that was “main” is no longer there");
    EXPECT_EQ(messageOf<std::out_of_range>([&] { main.remove(); }),
              "the element that was “main” is no longer there");
}

TEST_F(BenchElementTest, IsShownWithWhatIsBelowIt) {
    main.add("Test.Mixer", "child");
    main.at("steps").insertRow(0);
    EXPECT_EQ(main.tree(), R"(main  (Mixer, 1 error)
  ok     Drive: fixed
  hidden Top speed: 1500
  ok     Summary: 1 steps
  ok     Follows:
  ok     Steps: 1 row
          0:   (1 error)
            error  Ingredient:  <- Name the ingredient.
            ok     Speed: 100
  child  (Mixer, no errors)
    ok     Drive: fixed
    hidden Top speed: 1500
    ok     Summary: 0 steps
    ok     Follows:
    ok     Steps: no rows
)");
}

} // namespace

} // namespace corvane::tests
