#include "BenchTest.hpp"
#include <corvane/workbench/testing/Refused.hpp>

#include <stdexcept>

namespace corvane::tests {

namespace {

class SettingTest : public BenchTest {
protected:
    /// Adds steps of these ingredients to the end.
    void addSteps(const std::vector<std::string>& ingredients) {
        for (const std::string& ingredient : ingredients) {
            const std::size_t index = steps.rows().size();
            steps.insertRow(index);
            main.at("steps[" + std::to_string(index) + "].ingredient").set(ingredient);
        }
    }

    Setting steps = main.at("steps");
};

TEST_F(SettingTest, IsReadAndSetAsAUserDoes) {
    main.at("drive").set("variable");
    EXPECT_EQ(main.at("drive").text(), "variable");
    EXPECT_THAT(main.at("drive").choices(), ElementsAre("fixed", "variable"));
    EXPECT_TRUE(main.at("topSpeed").visible());
    main.at("topSpeed").set("0");
    EXPECT_EQ(main.at("topSpeed").error(), "The top speed must lie between 1 and 3000.");
    main.at("topSpeed").set("1");
    EXPECT_EQ(main.at("topSpeed").error(), "");
}

TEST_F(SettingTest, KeepsTextOutsideAscii) {
    addSteps({"Öl 🛢"});
    EXPECT_EQ(main.at("steps[0].ingredient").text(), "Öl 🛢");
    EXPECT_THAT(steps.rows(), ElementsAre("Öl 🛢"));
}

TEST_F(SettingTest, PointsReferencesAtKeys) {
    const BenchElement second = bench.add("Test.Mixer", "second");
    second.at("leader").set("main.speed");
    EXPECT_EQ(second.at("leader").text(), "main.speed");
    EXPECT_EQ(second.at("leader").error(), "");
    second.at("leader").set("main.power");
    EXPECT_EQ(second.at("leader").error(),
              "the element “main” does not have an attribute named “power”");
}

TEST_F(SettingTest, SaysWhyATextIsRefused) {
    EXPECT_EQ(main.at("topSpeed").trySet("fast"), "“fast” is not a whole number.");
    EXPECT_EQ(messageOf<Refused>([&] { main.at("topSpeed").set("fast"); }),
              "main.topSpeed: “fast” is not a whole number.");
    EXPECT_EQ(main.at("topSpeed").text(), "1500");
}

TEST_F(SettingTest, CanBeReadOnly) {
    EXPECT_TRUE(main.at("summary").readOnly());
    EXPECT_EQ(main.at("summary").trySet("x"), "The setting is read only.");
    EXPECT_FALSE(main.at("drive").readOnly());
    EXPECT_FALSE(main.at("leader").readOnly());
    EXPECT_FALSE(steps.readOnly());
}

TEST_F(SettingTest, GetsLosesAndMovesRows) {
    addSteps({"water", "sugar", "salt"});
    steps.moveRow(0, 2);
    EXPECT_THAT(steps.rows(), ElementsAre("sugar", "salt", "water"));
    EXPECT_THAT(steps.announced(), ElementsAre("value       main.steps: 3 rows  (row moved to 2)"));
    steps.removeRow(1);
    EXPECT_THAT(steps.rows(), ElementsAre("sugar", "water"));
    steps.insertRow(1);
    EXPECT_THAT(steps.rows(), ElementsAre("sugar", "", "water"));
}

TEST_F(SettingTest, SaysWhyRowsAreRefused) {
    EXPECT_NE(steps.tryInsertRow(1), "");
    EXPECT_NE(steps.tryRemoveRow(0), "");
    EXPECT_NE(steps.tryMoveRow(0, 1), "");
    EXPECT_EQ(main.at("drive").tryInsertRow(0), "The setting takes no further rows.");
    EXPECT_EQ(main.at("drive").tryRemoveRow(0), "The setting keeps its rows.");
    EXPECT_EQ(main.at("drive").tryMoveRow(0, 0), "The setting keeps its rows in their order.");
    EXPECT_EQ(messageOf<Refused>([&] { main.at("drive").insertRow(0); }),
              "main.drive: The setting takes no further rows.");
    EXPECT_THAT(main.at("drive").rows(), IsEmpty());
}

TEST_F(SettingTest, NamesAnotherRowAfterOneWasInsertedInFront) {
    addSteps({"water"});
    const Setting first = main.at("steps[0].ingredient");
    steps.insertRow(0);
    EXPECT_EQ(first.text(), "");
}

TEST_F(SettingTest, SaysThatItIsGone) {
    addSteps({"water"});
    const Setting first = main.at("steps[0].ingredient");
    steps.removeRow(0);
    EXPECT_EQ(messageOf<std::out_of_range>([&] { static_cast<void>(first.text()); }),
              "there is no setting “main.steps.0.ingredient” any more");
}

TEST_F(SettingTest, HasAnnouncedItsOwnPart) {
    main.at("drive").set("variable");
    EXPECT_THAT(main.at("topSpeed").announced(), ElementsAre("visibility  main.topSpeed: visible"));
    EXPECT_THAT(steps.announced(), IsEmpty());
}

TEST_F(SettingTest, IsMarkedInTheTreeOfItsElement) {
    addSteps({"water", "sugar"});
    EXPECT_EQ(main.at("steps[1].speed").tree(), R"(  main  (Mixer, no errors)
    ok     Drive: fixed
    hidden Top speed: 1500
    ok     Summary: 2 steps
    ok     Follows:
    ok     Steps: 2 rows
            0: water  (no errors)
              ok     Ingredient: water
              ok     Speed: 100
            1: sugar  (no errors)
              ok     Ingredient: sugar
>             ok     Speed: 100
)");
}

} // namespace

} // namespace corvane::tests
