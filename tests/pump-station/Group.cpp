#include "PumpStationTest.hpp"

namespace {

using namespace pump_station::tests;

class Group : public PumpStationTest {
protected:
    BenchElement intake = bench.add("PumpStation.Area", "Intake");
};

TEST_F(Group, StartsWithAHintAndIsValid) {
    EXPECT_THAT(intake.settings(), ElementsAre("description"));
    EXPECT_THAT(intake.at("description"), HasText("Describe what belongs here."));
    EXPECT_THAT(bench, HasErrors(0));
}

TEST_F(Group, KeepsItsDescription) {
    intake.at("description").set("Wehr am Mühlbach");
    bench.load(bench.saved());
    EXPECT_THAT(intake.at("description"), HasText("Wehr am Mühlbach"));
}

TEST_F(Group, TellsWhoWatchesTheDescription) {
    intake.at("description").set("Weir");
    EXPECT_THAT(bench, Announced("value       Intake.description: Weir"));
}

TEST_F(Group, HasNoMembersOfItsOwn) {
    EXPECT_THAT(intake.attributes(), IsEmpty());
    EXPECT_THAT(intake.events(), IsEmpty());
    EXPECT_THAT(intake.tasks(), IsEmpty());
}

} // namespace
