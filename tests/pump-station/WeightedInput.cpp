#include "PumpStationTest.hpp"

namespace {

using pump_station::tests::PumpStationTest;
using testing::ElementsAre;

class WeightedInput : public PumpStationTest {
protected:
    WeightedInput() {
        add("", "PumpStation.Controller", "PLC");
        add("PLC", "PumpStation.Pump", "[Pump 1.2]");
        add("", "PumpStation.PumpBalancer", "Balancer");
        EXPECT_EQ(insertRow("Balancer", "inputs", 0), "");
    }
};

TEST_F(WeightedInput, StartsEmpty) {
    EXPECT_THAT(rows("Balancer", "inputs"), ElementsAre("1 × no attribute"));
    EXPECT_EQ(state("Balancer", "inputs.0.attribute"), "empty attribute key");
    EXPECT_EQ(state("Balancer", "inputs.0.weight"), "");
}

TEST_F(WeightedInput, NeedsAWeightOfAtMost100) {
    for (const char* weight : {"0", "-1", "100.5"}) {
        EXPECT_EQ(set("Balancer", "inputs.0.weight", weight), "");
        EXPECT_EQ(state("Balancer", "inputs.0.weight"),
                  "The weight must be greater than 0 and at most 100.");
    }
    EXPECT_EQ(set("Balancer", "inputs.0.weight", "100"), "");
    EXPECT_EQ(state("Balancer", "inputs.0.weight"), "");
}

TEST_F(WeightedInput, RefersToAnAttributeWhoseNameHasADot) {
    EXPECT_EQ(refer("Balancer", "inputs.0.attribute", "PLC.[Pump 1.2].[vibration.x]"), "");
    EXPECT_EQ(state("Balancer", "inputs.0.attribute"), "");
    EXPECT_EQ(set("Balancer", "inputs.0.weight", "7.5"), "");
    EXPECT_THAT(rows("Balancer", "inputs"), ElementsAre("7.5 × PLC.[Pump 1.2].[vibration.x]"));
}

TEST_F(WeightedInput, SaysWhyItsAttributeDoesNotResolve) {
    EXPECT_EQ(refer("Balancer", "inputs.0.attribute", "PLC.[Pump 1.2].[vibration.z]"), "");
    EXPECT_EQ(state("Balancer", "inputs.0.attribute"),
              "the element “PLC.[Pump 1.2]” does not have an attribute named “[vibration.z]”");
}

TEST_F(WeightedInput, RaisesItsChangesAsOnesOfTheList) {
    record("Balancer", "inputs");
    EXPECT_EQ(set("Balancer", "inputs.0.weight", "2"), "");
    EXPECT_EQ(refer("Balancer", "inputs.0.attribute", "PLC.[Pump 1.2].power"), "");
    EXPECT_TRUE(workbench.rename("PLC.[Pump 1.2]", "[Pump 1.4]"));
    EXPECT_THAT(calls, ElementsAre("inputs value Update 0", "inputs value Update 0",
                                   "inputs value Update 0"));
    EXPECT_THAT(rows("Balancer", "inputs"), ElementsAre("2 × PLC.[Pump 1.4].power"));
}

} // namespace
