#include "PumpStationTest.hpp"
#include <corvane/workbench/skill/AbstractElementFactory.hpp>

namespace {

using pump_station::tests::PumpStationTest;
using pump_station::tests::savedSettings;
using testing::ElementsAre;
namespace skill = corvane::workbench::skill;

class PumpBalancer : public PumpStationTest {
protected:
    PumpBalancer() {
        add("", "PumpStation.Controller", "PLC");
        add("PLC", "PumpStation.Pump", "[Pump 1.1]");
        add("", "PumpStation.PumpBalancer", "Balancer");
    }
    /// Makes the balancer valid.
    void complete() {
        EXPECT_EQ(refer("Balancer", "pump", "PLC.[Pump 1.1]"), "");
        EXPECT_EQ(insertRow("Balancer", "inputs", 0), "");
        EXPECT_EQ(refer("Balancer", "inputs.0.attribute", "PLC.[Pump 1.1].power"), "");
        EXPECT_EQ(errorCount(), 0U);
    }
};

TEST_F(PumpBalancer, StartsWithoutPumpAndInputs) {
    EXPECT_THAT(propertyNames("Balancer"), ElementsAre("pump", "gain", "inputs"));
    EXPECT_EQ(text("Balancer", "gain"), "1");
    EXPECT_EQ(state("Balancer", "pump"), "empty element key");
    EXPECT_EQ(state("Balancer", "inputs"), "Add an attribute to weigh up.");
    EXPECT_EQ(errorCount(), 2U);
}

TEST_F(PumpBalancer, AcceptsPumpsOnly) {
    EXPECT_EQ(refer("Balancer", "pump", "PLC"), "");
    EXPECT_EQ(state("Balancer", "pump"), "The element “PLC” is not a pump.");
    EXPECT_EQ(refer("Balancer", "pump", "PLC.[Pump 1.1]"), "");
    EXPECT_EQ(state("Balancer", "pump"), "");
}

TEST_F(PumpBalancer, SaysWhyItsPumpDoesNotResolve) {
    EXPECT_EQ(refer("Balancer", "pump", "PLC.[Pump 1.2]"), "");
    EXPECT_EQ(state("Balancer", "pump"),
              "the element “PLC” does not have a child named “[Pump 1.2]”");
}

TEST_F(PumpBalancer, FindsAPumpThatTakesTheNameItWaitsFor) {
    EXPECT_EQ(refer("Balancer", "pump", "PLC.[Pump 1.2]"), "");
    record("Balancer", "pump");
    add("PLC", "PumpStation.Valve", "[Pump 1.2]");
    EXPECT_TRUE(workbench.remove("PLC.[Pump 1.2]"));
    EXPECT_TRUE(workbench.rename("PLC.[Pump 1.1]", "[Pump 1.2]"));
    EXPECT_THAT(calls,
                ElementsAre("pump state The element “PLC.[Pump 1.2]” is not a pump.",
                            "pump state the element “PLC” does not have a child named “[Pump 1.2]”",
                            "pump state "));
}

TEST_F(PumpBalancer, NeedsAGain) {
    EXPECT_EQ(set("Balancer", "gain", "0"), "");
    EXPECT_EQ(state("Balancer", "gain"), "The gain must be greater than 0.");
}

TEST_F(PumpBalancer, ListsReferencesOfEveryKindOfMember) {
    complete();
    EXPECT_EQ(workbench.referencesTo(*workbench.findElement("PLC.[Pump 1.1]")).size(), 2U);
    EXPECT_EQ(removeRow("Balancer", "inputs", 0), "");
    EXPECT_EQ(workbench.referencesTo(*workbench.findElement("PLC.[Pump 1.1]")).size(), 1U);
}

TEST_F(PumpBalancer, IsKeptWithItsReferences) {
    complete();
    const std::string written = saved();
    EXPECT_TRUE(loadText(written));
    EXPECT_EQ(errorCount(), 0U);
    EXPECT_EQ(saved(), written);
}

TEST_F(PumpBalancer, GivesACopyReferencesOfItsOwn) {
    complete();
    const std::unique_ptr<skill::Element> copy =
        workbench.elementClasses()
            .find("PumpStation.PumpBalancer")
            ->factory()
            .copyElement(*workbench.findElement("Balancer")->skillElement());
    EXPECT_EQ(workbench.referencesTo(*workbench.findElement("PLC.[Pump 1.1]")).size(), 4U);
    EXPECT_TRUE(workbench.remove("Balancer"));
    EXPECT_TRUE(workbench.rename("PLC.[Pump 1.1]", "Pump"));
    EXPECT_EQ(
        savedSettings(*copy),
        R"({"pump":"PLC.Pump","gain":1,"inputs":[{"attribute":"PLC.Pump.power","weight":1}]})");
}

TEST_F(PumpBalancer, OffersItsMembers) {
    EXPECT_THAT(attributes("Balancer"), ElementsAre("output"));
    EXPECT_THAT(events("Balancer"), testing::IsEmpty());
    EXPECT_THAT(tasks("Balancer"), ElementsAre("rebalance"));
}

} // namespace
