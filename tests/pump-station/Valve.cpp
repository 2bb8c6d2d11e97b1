#include "PumpStationTest.hpp"

namespace {

using namespace pump_station::tests;

class Valve : public PumpStationTest {
protected:
    BenchElement valve =
        bench.add("PumpStation.Controller", "PLC").add("PumpStation.Valve", "Valve");
};

TEST_F(Valve, StartsValid) {
    EXPECT_THAT(valve.settings(),
                ElementsAre("kind", "travelTime", "failPosition", "minimumOpening"));
    EXPECT_THAT(valve.at("kind"), HasText("shut-off"));
    EXPECT_THAT(valve.at("travelTime"), HasText("30s"));
    EXPECT_THAT(valve.at("failPosition"), HasText("hold"));
    EXPECT_THAT(bench, HasErrors(0));
}

TEST_F(Valve, NeedsATravelTime) {
    valve.at("travelTime").set("-5s");
    EXPECT_THAT(valve.at("travelTime"), HasError("The travel time must be longer than 0."));
}

TEST_F(Valve, ShowsTheMinimumOpeningOnlyWhenItControls) {
    EXPECT_THAT(valve.at("minimumOpening"), IsHidden());
    valve.at("kind").set("control");
    EXPECT_THAT(valve.at("minimumOpening"), IsVisible());
    EXPECT_THAT(bench.saved(), HasSubstr("\"minimumOpening\": 0"));
    valve.at("kind").set("shut-off");
    EXPECT_THAT(bench.saved(), Not(HasSubstr("minimumOpening")));
}

TEST_F(Valve, NeedsAMinimumOpeningThatLeavesRoom) {
    valve.at("kind").set("control");
    for (const char* opening : {"-0.5", "100"}) {
        valve.at("minimumOpening").set(opening);
        EXPECT_THAT(valve.at("minimumOpening"),
                    HasError("The minimum opening must be at least 0 and less than 100 %."));
    }
    for (const char* opening : {"0", "99.5"}) {
        valve.at("minimumOpening").set(opening);
        EXPECT_THAT(valve.at("minimumOpening"), IsOk());
    }
}

TEST_F(Valve, OffersPositionsOnFailure) {
    EXPECT_THAT(valve.at("failPosition").choices(), ElementsAre("open", "closed", "hold"));
    valve.at("failPosition").set("closed");
    bench.load(bench.saved());
    EXPECT_THAT(valve.at("failPosition"), HasText("closed"));
}

TEST_F(Valve, OffersItsMembers) {
    EXPECT_THAT(valve.attributes(), ElementsAre("deviceState", "position"));
    EXPECT_THAT(valve.events(), ElementsAre("opened", "closed"));
    EXPECT_THAT(valve.tasks(), ElementsAre("open", "close"));
}

} // namespace
