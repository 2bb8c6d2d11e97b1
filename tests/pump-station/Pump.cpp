#include "PumpStationTest.hpp"
#include <corvane/workbench/host/Observer.hpp>

namespace {

using pump_station::tests::PumpStationTest;
using testing::ElementsAre;
using testing::HasSubstr;
namespace host = corvane::workbench::host;

constexpr std::string_view kPump = "PLC.[Pump 1.1]";

class Pump : public PumpStationTest {
protected:
    Pump() {
        add("", "PumpStation.Controller", "PLC");
        add("PLC", "PumpStation.Pump", "[Pump 1.1]");
    }
};

TEST_F(Pump, StartsValid) {
    EXPECT_THAT(propertyNames(kPump),
                ElementsAre("drive", "ratedPower", "ratedFlow", "specificEnergy", "minimumSpeed",
                            "maximumSpeed"));
    EXPECT_EQ(text(kPump, "drive"), "fixed speed");
    EXPECT_EQ(text(kPump, "ratedPower"), "7.5");
    EXPECT_EQ(text(kPump, "ratedFlow"), "50");
    EXPECT_EQ(errorCount(), 0U);
}

TEST_F(Pump, NeedsARatedPower) {
    EXPECT_EQ(set(kPump, "ratedPower", "0"), "");
    EXPECT_EQ(state(kPump, "ratedPower"), "The rated power must be greater than 0 kW.");
}

TEST_F(Pump, NeedsARatedFlow) {
    EXPECT_EQ(set(kPump, "ratedFlow", "-1"), "");
    EXPECT_EQ(state(kPump, "ratedFlow"), "The rated flow must be greater than 0 m³/h.");
}

TEST_F(Pump, ShowsTheSpecificEnergyThatFollowsFromPowerAndFlow) {
    record(kPump, "specificEnergy");
    EXPECT_FALSE(property(kPump, "specificEnergy").setText);
    EXPECT_EQ(text(kPump, "specificEnergy"), "0.15");
    EXPECT_EQ(set(kPump, "ratedPower", "22"), "");
    EXPECT_EQ(text(kPump, "specificEnergy"), "0.44");
    EXPECT_EQ(set(kPump, "ratedFlow", "0"), "");
    EXPECT_EQ(text(kPump, "specificEnergy"), "unknown");
    EXPECT_THAT(calls,
                ElementsAre("specificEnergy value Update 0", "specificEnergy value Update 0"));
}

TEST_F(Pump, ShowsSpeedsOnlyWithAVariableDrive) {
    EXPECT_FALSE(visible(kPump, "minimumSpeed"));
    EXPECT_FALSE(visible(kPump, "maximumSpeed"));
    EXPECT_EQ(set(kPump, "drive", "variable speed"), "");
    EXPECT_TRUE(visible(kPump, "minimumSpeed"));
    EXPECT_TRUE(visible(kPump, "maximumSpeed"));
    EXPECT_EQ(text(kPump, "minimumSpeed"), "600");
    EXPECT_EQ(text(kPump, "maximumSpeed"), "1450");
}

TEST_F(Pump, NeedsSpeedsInOrder) {
    EXPECT_EQ(set(kPump, "drive", "variable speed"), "");
    EXPECT_EQ(set(kPump, "minimumSpeed", "-1"), "");
    EXPECT_EQ(state(kPump, "minimumSpeed"), "The minimum speed must not be negative.");
    EXPECT_EQ(set(kPump, "minimumSpeed", "1450"), "");
    EXPECT_EQ(state(kPump, "minimumSpeed"), "");
    EXPECT_EQ(state(kPump, "maximumSpeed"), "The maximum speed must lie above the minimum speed.");
    EXPECT_EQ(errorCount(), 1U);
    EXPECT_EQ(set(kPump, "drive", "fixed speed"), "");
    EXPECT_EQ(errorCount(), 0U);
}

TEST_F(Pump, SavesSpeedsOnlyWithAVariableDrive) {
    EXPECT_THAT(saved(), testing::Not(HasSubstr("Speed\"")));
    EXPECT_EQ(set(kPump, "drive", "variable speed"), "");
    EXPECT_THAT(saved(), HasSubstr("\"minimumSpeed\": 600,\n"));
    EXPECT_THAT(saved(), HasSubstr("\"maximumSpeed\": 1450\n"));
}

TEST_F(Pump, OffersItsMembers) {
    EXPECT_THAT(attributes(kPump),
                ElementsAre("deviceState", "power", "[vibration.x]", "[vibration.y]"));
    EXPECT_THAT(events(kPump), ElementsAre("started", "stopped", "tripped"));
    EXPECT_THAT(tasks(kPump), ElementsAre("start", "stop"));
    EXPECT_EQ(set(kPump, "drive", "variable speed"), "");
    EXPECT_THAT(attributes(kPump),
                ElementsAre("deviceState", "power", "[vibration.x]", "[vibration.y]", "speed"));
}

TEST_F(Pump, AnnouncesTheSpeedThatComesWithAVariableDrive) {
    class MembersObserver final : public host::Observer {
    public:
        void elementMembersChanged(const host::ElementNode& element) override {
            keys.push_back(element.primaryKey());
        }
        std::vector<std::string> keys;
    } observer;
    workbench.addObserver(observer);
    EXPECT_EQ(set(kPump, "ratedPower", "5"), "");
    EXPECT_THAT(observer.keys, testing::IsEmpty());
    EXPECT_EQ(set(kPump, "drive", "variable speed"), "");
    workbench.removeObserver(observer);
    EXPECT_THAT(observer.keys, ElementsAre("PLC.[Pump 1.1]"));
}

TEST_F(Pump, MakesReferencesToItsSpeedComeAndGoWithTheDrive) {
    add("", "PumpStation.PumpBalancer", "Balancer");
    EXPECT_EQ(insertRow("Balancer", "inputs", 0), "");
    EXPECT_EQ(refer("Balancer", "inputs.0.attribute", "PLC.[Pump 1.1].speed"), "");
    EXPECT_EQ(state("Balancer", "inputs.0.attribute"),
              "the element “PLC.[Pump 1.1]” does not have an attribute named “speed”");
    EXPECT_EQ(set(kPump, "drive", "variable speed"), "");
    EXPECT_EQ(state("Balancer", "inputs.0.attribute"), "");
    EXPECT_EQ(set(kPump, "drive", "fixed speed"), "");
    EXPECT_EQ(state("Balancer", "inputs.0.attribute"),
              "the element “PLC.[Pump 1.1]” does not have an attribute named “speed”");
}

} // namespace
