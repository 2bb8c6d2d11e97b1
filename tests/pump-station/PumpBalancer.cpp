#include "PumpStationTest.hpp"
#include <corvane/workbench/skill/AbstractElementFactory.hpp>

namespace {

using namespace pump_station::tests;
namespace skill = corvane::workbench::skill;

class PumpBalancer : public PumpStationTest {
protected:
    BenchElement plc = bench.add("PumpStation.Controller", "PLC");
    BenchElement pump = plc.add("PumpStation.Pump", "[Pump 1.1]");
    BenchElement balancer = bench.add("PumpStation.PumpBalancer", "Balancer");

    /// Makes the balancer valid.
    void complete() {
        balancer.at("pump").set("PLC.[Pump 1.1]");
        balancer.at("inputs").insertRow(0);
        balancer.at("inputs[0].attribute").set("PLC.[Pump 1.1].power");
        EXPECT_THAT(bench, HasErrors(0));
    }
};

TEST_F(PumpBalancer, StartsWithoutPumpAndInputs) {
    EXPECT_THAT(balancer.settings(), ElementsAre("pump", "gain", "inputs"));
    EXPECT_THAT(balancer.at("gain"), HasText("1"));
    EXPECT_THAT(balancer.at("pump"), HasError("empty element key"));
    EXPECT_THAT(balancer.at("inputs"), HasError("Add an attribute to weigh up."));
    EXPECT_THAT(bench, HasErrors(2));
}

TEST_F(PumpBalancer, AcceptsPumpsOnly) {
    balancer.at("pump").set("PLC");
    EXPECT_THAT(balancer.at("pump"), HasError("The element “PLC” is not a pump."));
    balancer.at("pump").set("PLC.[Pump 1.1]");
    EXPECT_THAT(balancer.at("pump"), IsOk());
}

TEST_F(PumpBalancer, SaysWhyItsPumpDoesNotResolve) {
    balancer.at("pump").set("PLC.[Pump 1.2]");
    EXPECT_THAT(balancer.at("pump"),
                HasError("the element “PLC” does not have a child named “[Pump 1.2]”"));
}

TEST_F(PumpBalancer, FindsAPumpThatTakesTheNameItWaitsFor) {
    balancer.at("pump").set("PLC.[Pump 1.2]");
    const BenchElement valve = plc.add("PumpStation.Valve", "[Pump 1.2]");
    EXPECT_THAT(balancer.at("pump"), HasError("The element “PLC.[Pump 1.2]” is not a pump."));
    valve.remove();
    EXPECT_THAT(balancer.at("pump"),
                HasError("the element “PLC” does not have a child named “[Pump 1.2]”"));
    pump.rename("[Pump 1.2]");
    EXPECT_THAT(bench, Announced(R"(
        renamed     PLC.[Pump 1.1] → PLC.[Pump 1.2]
        resolution  Balancer.pump: PLC.[Pump 1.2]
        state       Balancer.pump: ok
        errors      Balancer: 1
        errors      (root): 1)"));
}

TEST_F(PumpBalancer, NeedsAGain) {
    balancer.at("gain").set("0");
    EXPECT_THAT(balancer.at("gain"), HasError("The gain must be greater than 0."));
}

TEST_F(PumpBalancer, ListsReferencesOfEveryKindOfMember) {
    complete();
    EXPECT_EQ(bench.workbench().referencesTo(pump.node()).size(), 2U);
    balancer.at("inputs").removeRow(0);
    EXPECT_EQ(bench.workbench().referencesTo(pump.node()).size(), 1U);
}

TEST_F(PumpBalancer, IsKeptWithItsReferences) {
    complete();
    const std::string written = bench.saved();
    bench.load(written);
    EXPECT_THAT(bench, HasErrors(0));
    EXPECT_EQ(bench.saved(), written);
}

TEST_F(PumpBalancer, GivesACopyReferencesOfItsOwn) {
    complete();
    const std::unique_ptr<skill::Element> copy = bench.workbench()
                                                     .elementClasses()
                                                     .find("PumpStation.PumpBalancer")
                                                     ->factory()
                                                     .copyElement(*balancer.node().skillElement());
    EXPECT_EQ(bench.workbench().referencesTo(pump.node()).size(), 4U);
    balancer.remove();
    pump.rename("Pump");
    EXPECT_EQ(
        savedSettings(*copy),
        R"({"pump":"PLC.Pump","gain":1,"inputs":[{"attribute":"PLC.Pump.power","weight":1}]})");
}

TEST_F(PumpBalancer, OffersItsMembers) {
    EXPECT_THAT(balancer.attributes(), ElementsAre("output"));
    EXPECT_THAT(balancer.events(), IsEmpty());
    EXPECT_THAT(balancer.tasks(), ElementsAre("rebalance"));
}

} // namespace
