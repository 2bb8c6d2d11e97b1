#include "PumpStationTest.hpp"

namespace {

using namespace pump_station::tests;

class Setpoint : public PumpStationTest {
protected:
    BenchElement plc = bench.add("PumpStation.Controller", "PLC");
    BenchElement target = plc.add("PumpStation.Setpoint", "Target");
};

TEST_F(Setpoint, StartsValid) {
    EXPECT_THAT(target.settings(),
                ElementsAre("unit", "rangeLow", "rangeHigh", "mode", "value", "event"));
    EXPECT_THAT(target.at("mode"), HasText("fixed"));
    EXPECT_THAT(target.at("value"), HasText("0"));
    EXPECT_THAT(bench, HasErrors(0));
}

TEST_F(Setpoint, NeedsAUnit) {
    target.at("unit").set("");
    EXPECT_THAT(target.at("unit"), HasError("Enter the unit of the wanted value."));
}

TEST_F(Setpoint, NeedsARangeThatIsNotEmpty) {
    target.at("mode").set("follow");
    target.at("event").set("PLC.connected");
    target.at("rangeLow").set("10");
    EXPECT_THAT(target.at("rangeHigh"), HasError("The highest value must lie above the lowest."));
    EXPECT_THAT(bench, HasErrors(1));
}

TEST_F(Setpoint, NeedsAValueWithinTheRange) {
    target.at("value").set("10.5");
    EXPECT_THAT(target.at("value"), HasError("The value must lie between 0 and 10."));
    target.at("rangeHigh").set("10.5");
    EXPECT_THAT(target.at("value"), IsOk());
    target.at("rangeLow").set("10.6");
    EXPECT_THAT(target.at("value"), HasError("The value must lie between 10.6 and 10.5."));
}

TEST_F(Setpoint, ShowsEitherTheValueOrTheEvent) {
    EXPECT_THAT(target.at("value"), IsVisible());
    EXPECT_THAT(target.at("event"), IsHidden());
    target.at("mode").set("follow");
    EXPECT_THAT(target.at("value"), IsHidden());
    EXPECT_THAT(target.at("event"), IsVisible());
}

TEST_F(Setpoint, NeedsAnEventToFollow) {
    target.at("mode").set("follow");
    EXPECT_THAT(target.at("event"), HasError("empty event key"));
    EXPECT_THAT(bench, HasErrors(1));
    target.at("event").set("PLC.disconnected");
    EXPECT_THAT(target.at("event"), IsOk());
    EXPECT_THAT(target.at("event"), HasText("PLC.disconnected"));
    EXPECT_THAT(bench, HasErrors(0));
}

TEST_F(Setpoint, FollowsChangesOfAnAttributeToo) {
    plc.add("PumpStation.Measurement", "Level");
    target.at("mode").set("follow");
    target.at("event").set("PLC.Level.value");
    EXPECT_THAT(target.at("event"), IsOk());
    target.at("event").set("PLC.Level.level");
    EXPECT_THAT(
        target.at("event"),
        HasError("the element “PLC.Level” does not have an event or attribute named “level”"));
}

TEST_F(Setpoint, FollowsTheEventThroughRenamesAndRemovals) {
    const BenchElement level = plc.add("PumpStation.Measurement", "Level");
    target.at("mode").set("follow");
    target.at("event").set("PLC.Level.limitExceeded");
    level.rename("[Level 3.1]");
    EXPECT_THAT(target.at("event"), HasText("PLC.[Level 3.1].limitExceeded"));
    EXPECT_THAT(bench, Announced(R"(
        renamed     PLC.Level → PLC.[Level 3.1]
        new key     PLC.Target.event: PLC.[Level 3.1].limitExceeded
        value       PLC.Target.event: PLC.[Level 3.1].limitExceeded)"));
    level.remove();
    EXPECT_THAT(target.at("event"),
                HasError("the element “PLC” does not have a child named “[Level 3.1]”"));
    EXPECT_THAT(bench.saved(), HasSubstr("\"event\": \"PLC.[Level 3.1].limitExceeded\""));
}

TEST_F(Setpoint, SavesNoEventWhenThereIsNone) {
    EXPECT_THAT(bench.saved(), Not(HasSubstr("\"event\"")));
}

TEST_F(Setpoint, OffersItsMembers) {
    EXPECT_THAT(target.attributes(), ElementsAre("value", "writeTime"));
    EXPECT_THAT(target.events(), ElementsAre("changed"));
    EXPECT_THAT(target.tasks(), IsEmpty());
}

} // namespace
