#include "PumpStationTest.hpp"

namespace {

using namespace pump_station::tests;

class Pump : public PumpStationTest {
protected:
    BenchElement plc = bench.add("PumpStation.Controller", "PLC");
    BenchElement pump = plc.add("PumpStation.Pump", "[Pump 1.1]");
};

TEST_F(Pump, StartsValid) {
    EXPECT_THAT(pump.settings(), ElementsAre("drive", "ratedPower", "ratedFlow", "specificEnergy",
                                             "minimumSpeed", "maximumSpeed"));
    EXPECT_THAT(pump.at("drive"), HasText("fixed speed"));
    EXPECT_THAT(pump.at("ratedPower"), HasText("7.5"));
    EXPECT_THAT(pump.at("ratedFlow"), HasText("50"));
    EXPECT_THAT(bench, HasErrors(0));
}

TEST_F(Pump, NeedsARatedPower) {
    pump.at("ratedPower").set("0");
    EXPECT_THAT(pump.at("ratedPower"), HasError("The rated power must be greater than 0 kW."));
}

TEST_F(Pump, NeedsARatedFlow) {
    pump.at("ratedFlow").set("-1");
    EXPECT_THAT(pump.at("ratedFlow"), HasError("The rated flow must be greater than 0 m³/h."));
}

TEST_F(Pump, ShowsTheSpecificEnergyThatFollowsFromPowerAndFlow) {
    EXPECT_TRUE(pump.at("specificEnergy").readOnly());
    EXPECT_THAT(pump.at("specificEnergy"), HasText("0.15"));
    pump.at("ratedPower").set("22");
    EXPECT_THAT(pump.at("specificEnergy"), HasText("0.44"));
    EXPECT_THAT(bench, Announced(R"(
        value       PLC.[Pump 1.1].ratedPower: 22
        value       PLC.[Pump 1.1].specificEnergy: 0.44)"));
    pump.at("ratedFlow").set("0");
    EXPECT_THAT(pump.at("specificEnergy"), HasText("unknown"));
    EXPECT_THAT(pump.at("specificEnergy"),
                Announced("value       PLC.[Pump 1.1].specificEnergy: unknown"));
}

TEST_F(Pump, ShowsSpeedsOnlyWithAVariableDrive) {
    EXPECT_THAT(pump.at("minimumSpeed"), IsHidden());
    EXPECT_THAT(pump.at("maximumSpeed"), IsHidden());
    pump.at("drive").set("variable speed");
    EXPECT_THAT(pump.at("minimumSpeed"), IsVisible());
    EXPECT_THAT(pump.at("maximumSpeed"), IsVisible());
    EXPECT_THAT(pump.at("minimumSpeed"), HasText("600"));
    EXPECT_THAT(pump.at("maximumSpeed"), HasText("1450"));
}

TEST_F(Pump, NeedsSpeedsInOrder) {
    pump.at("drive").set("variable speed");
    pump.at("minimumSpeed").set("-1");
    EXPECT_THAT(pump.at("minimumSpeed"), HasError("The minimum speed must not be negative."));
    pump.at("minimumSpeed").set("1450");
    EXPECT_THAT(pump.at("minimumSpeed"), IsOk());
    EXPECT_THAT(pump.at("maximumSpeed"),
                HasError("The maximum speed must lie above the minimum speed."));
    EXPECT_THAT(bench, HasErrors(1));
    pump.at("drive").set("fixed speed");
    EXPECT_THAT(bench, HasErrors(0));
}

TEST_F(Pump, SavesSpeedsOnlyWithAVariableDrive) {
    EXPECT_THAT(bench.saved(), Not(HasSubstr("Speed\"")));
    pump.at("drive").set("variable speed");
    EXPECT_THAT(bench.saved(), HasSubstr("\"minimumSpeed\": 600,\n"));
    EXPECT_THAT(bench.saved(), HasSubstr("\"maximumSpeed\": 1450\n"));
}

TEST_F(Pump, OffersItsMembers) {
    EXPECT_THAT(pump.attributes(),
                ElementsAre("deviceState", "power", "[vibration.x]", "[vibration.y]"));
    EXPECT_THAT(pump.events(), ElementsAre("started", "stopped", "tripped"));
    EXPECT_THAT(pump.tasks(), ElementsAre("start", "stop"));
    pump.at("drive").set("variable speed");
    EXPECT_THAT(pump.attributes(),
                ElementsAre("deviceState", "power", "[vibration.x]", "[vibration.y]", "speed"));
}

TEST_F(Pump, AnnouncesTheSpeedThatComesWithAVariableDrive) {
    pump.at("ratedPower").set("5");
    EXPECT_THAT(bench.announced(), Not(Contains(HasSubstr("members"))));
    pump.at("drive").set("variable speed");
    EXPECT_THAT(bench.announced(), Contains("members     PLC.[Pump 1.1]"));
}

TEST_F(Pump, MakesReferencesToItsSpeedComeAndGoWithTheDrive) {
    const BenchElement balancer = bench.add("PumpStation.PumpBalancer", "Balancer");
    balancer.at("inputs").insertRow(0);
    balancer.at("inputs[0].attribute").set("PLC.[Pump 1.1].speed");
    EXPECT_THAT(balancer.at("inputs[0].attribute"),
                HasError("the element “PLC.[Pump 1.1]” does not have an attribute named “speed”"));
    pump.at("drive").set("variable speed");
    EXPECT_THAT(balancer.at("inputs[0].attribute"), IsOk());
    pump.at("drive").set("fixed speed");
    EXPECT_THAT(balancer.at("inputs[0].attribute"),
                HasError("the element “PLC.[Pump 1.1]” does not have an attribute named “speed”"));
}

} // namespace
