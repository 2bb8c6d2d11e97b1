#include "PumpStationTest.hpp"

namespace {

using pump_station::tests::PumpStationTest;
using testing::ElementsAre;

class Group : public PumpStationTest {};

TEST_F(Group, StartsWithAHintAndIsValid) {
    add("", "PumpStation.Area", "Intake");
    EXPECT_THAT(propertyNames("Intake"), ElementsAre("description"));
    EXPECT_EQ(text("Intake", "description"), "Describe what belongs here.");
    EXPECT_EQ(errorCount(), 0U);
}

TEST_F(Group, KeepsItsDescription) {
    add("", "PumpStation.Area", "Intake");
    EXPECT_EQ(set("Intake", "description", "Wehr am Mühlbach"), "");
    EXPECT_TRUE(loadText(saved()));
    EXPECT_EQ(text("Intake", "description"), "Wehr am Mühlbach");
}

TEST_F(Group, TellsWhoWatchesTheDescription) {
    add("", "PumpStation.Area", "Intake");
    // A property without rules is known to the element only once somebody asks for it.
    record("Intake", "description");
    EXPECT_EQ(set("Intake", "description", "Weir"), "");
    EXPECT_THAT(calls, ElementsAre("description value Update 0"));
}

TEST_F(Group, HasNoMembersOfItsOwn) {
    add("", "PumpStation.Area", "Intake");
    EXPECT_THAT(attributes("Intake"), testing::IsEmpty());
    EXPECT_THAT(events("Intake"), testing::IsEmpty());
    EXPECT_THAT(tasks("Intake"), testing::IsEmpty());
}

} // namespace
