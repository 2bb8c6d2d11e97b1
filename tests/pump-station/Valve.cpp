#include "PumpStationTest.hpp"

namespace {

using pump_station::tests::PumpStationTest;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::string_view kValve = "PLC.Valve";

class Valve : public PumpStationTest {
protected:
    Valve() {
        add("", "PumpStation.Controller", "PLC");
        add("PLC", "PumpStation.Valve", "Valve");
    }
};

TEST_F(Valve, StartsValid) {
    EXPECT_THAT(propertyNames(kValve),
                ElementsAre("kind", "travelTime", "failPosition", "minimumOpening"));
    EXPECT_EQ(text(kValve, "kind"), "shut-off");
    EXPECT_EQ(text(kValve, "travelTime"), "30s");
    EXPECT_EQ(text(kValve, "failPosition"), "hold");
    EXPECT_EQ(errorCount(), 0U);
}

TEST_F(Valve, NeedsATravelTime) {
    EXPECT_EQ(set(kValve, "travelTime", "-5s"), "");
    EXPECT_EQ(state(kValve, "travelTime"), "The travel time must be longer than 0.");
}

TEST_F(Valve, ShowsTheMinimumOpeningOnlyWhenItControls) {
    EXPECT_FALSE(visible(kValve, "minimumOpening"));
    EXPECT_EQ(set(kValve, "kind", "control"), "");
    EXPECT_TRUE(visible(kValve, "minimumOpening"));
    EXPECT_THAT(saved(), HasSubstr("\"minimumOpening\": 0"));
    EXPECT_EQ(set(kValve, "kind", "shut-off"), "");
    EXPECT_THAT(saved(), testing::Not(HasSubstr("minimumOpening")));
}

TEST_F(Valve, NeedsAMinimumOpeningThatLeavesRoom) {
    EXPECT_EQ(set(kValve, "kind", "control"), "");
    for (const char* opening : {"-0.5", "100"}) {
        EXPECT_EQ(set(kValve, "minimumOpening", opening), "");
        EXPECT_EQ(state(kValve, "minimumOpening"),
                  "The minimum opening must be at least 0 and less than 100 %.");
    }
    for (const char* opening : {"0", "99.5"}) {
        EXPECT_EQ(set(kValve, "minimumOpening", opening), "");
        EXPECT_EQ(state(kValve, "minimumOpening"), "");
    }
}

TEST_F(Valve, OffersPositionsOnFailure) {
    EXPECT_THAT(property(kValve, "failPosition").choices, ElementsAre(L"open", L"closed", L"hold"));
    EXPECT_EQ(set(kValve, "failPosition", "closed"), "");
    EXPECT_TRUE(loadText(saved()));
    EXPECT_EQ(text(kValve, "failPosition"), "closed");
}

TEST_F(Valve, OffersItsMembers) {
    EXPECT_THAT(attributes(kValve), ElementsAre("deviceState", "position"));
    EXPECT_THAT(events(kValve), ElementsAre("opened", "closed"));
    EXPECT_THAT(tasks(kValve), ElementsAre("open", "close"));
}

} // namespace
