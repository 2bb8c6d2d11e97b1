#include "PumpStationTest.hpp"

namespace {

using namespace pump_station::tests;

class WeightedInput : public PumpStationTest {
protected:
    WeightedInput() { balancer.at("inputs").insertRow(0); }

    BenchElement pump =
        bench.add("PumpStation.Controller", "PLC").add("PumpStation.Pump", "[Pump 1.2]");
    BenchElement balancer = bench.add("PumpStation.PumpBalancer", "Balancer");
};

TEST_F(WeightedInput, StartsEmpty) {
    EXPECT_THAT(balancer.at("inputs"), HasRows("1 × no attribute"));
    EXPECT_THAT(balancer.at("inputs[0].attribute"), HasError("empty attribute key"));
    EXPECT_THAT(balancer.at("inputs[0].weight"), IsOk());
}

TEST_F(WeightedInput, NeedsAWeightOfAtMost100) {
    for (const char* weight : {"0", "-1", "100.5"}) {
        balancer.at("inputs[0].weight").set(weight);
        EXPECT_THAT(balancer.at("inputs[0].weight"),
                    HasError("The weight must be greater than 0 and at most 100."));
    }
    balancer.at("inputs[0].weight").set("100");
    EXPECT_THAT(balancer.at("inputs[0].weight"), IsOk());
}

TEST_F(WeightedInput, RefersToAnAttributeWhoseNameHasADot) {
    balancer.at("inputs[0].attribute").set("PLC.[Pump 1.2].[vibration.x]");
    EXPECT_THAT(balancer.at("inputs[0].attribute"), IsOk());
    balancer.at("inputs[0].weight").set("7.5");
    EXPECT_THAT(balancer.at("inputs"), HasRows("7.5 × PLC.[Pump 1.2].[vibration.x]"));
}

TEST_F(WeightedInput, SaysWhyItsAttributeDoesNotResolve) {
    balancer.at("inputs[0].attribute").set("PLC.[Pump 1.2].[vibration.z]");
    EXPECT_THAT(
        balancer.at("inputs[0].attribute"),
        HasError("the element “PLC.[Pump 1.2]” does not have an attribute named “[vibration.z]”"));
}

TEST_F(WeightedInput, RaisesItsChangesAsOnesOfTheList) {
    const Setting inputs = balancer.at("inputs");
    balancer.at("inputs[0].weight").set("2");
    EXPECT_THAT(inputs, Announced("value       Balancer.inputs: 1 row"));
    balancer.at("inputs[0].attribute").set("PLC.[Pump 1.2].power");
    EXPECT_THAT(inputs, Announced("value       Balancer.inputs: 1 row"));
    pump.rename("[Pump 1.4]");
    EXPECT_THAT(inputs, Announced("value       Balancer.inputs: 1 row"));
    EXPECT_THAT(balancer.at("inputs"), HasRows("2 × PLC.[Pump 1.4].power"));
}

} // namespace
