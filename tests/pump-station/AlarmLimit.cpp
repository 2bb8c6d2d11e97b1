#include "PumpStationTest.hpp"
#include <corvane/workbench/skill/SubElement.hpp>

namespace {

using namespace pump_station::tests;
namespace bindings = corvane::workbench::bindings;
namespace skill = corvane::workbench::skill;

class AlarmLimit : public PumpStationTest {
protected:
    BenchElement level =
        bench.add("PumpStation.Controller", "PLC").add("PumpStation.Measurement", "Level");

    AlarmLimit() { level.at("alarmLimits").insertRow(0); }
};

TEST_F(AlarmLimit, NeedsAMessage) {
    EXPECT_THAT(level.at("alarmLimits[0].message"),
                HasError("Enter the message that the operator reads."));
    level.at("alarmLimits[0].message").set("Tank is full");
    EXPECT_THAT(level.at("alarmLimits[0].message"), IsOk());
}

TEST_F(AlarmLimit, NeedsAThresholdWithinTheRange) {
    for (const char* threshold : {"-0.5", "10.5"}) {
        level.at("alarmLimits[0].threshold").set(threshold);
        EXPECT_THAT(level.at("alarmLimits[0].threshold"),
                    HasError("The threshold must lie within the measuring range, 0 to 10."));
    }
    for (const char* threshold : {"0", "10"}) {
        level.at("alarmLimits[0].threshold").set(threshold);
        EXPECT_THAT(level.at("alarmLimits[0].threshold"), IsOk());
    }
}

TEST_F(AlarmLimit, NeedsADelayThatIsNotNegative) {
    level.at("alarmLimits[0].delay").set("-1ms");
    EXPECT_THAT(level.at("alarmLimits[0].delay"), HasError("The delay must not be negative."));
    level.at("alarmLimits[0].delay").set("0");
    EXPECT_THAT(level.at("alarmLimits[0].delay"), IsOk());
}

TEST_F(AlarmLimit, IsNamedAfterItsKindAndThreshold) {
    EXPECT_THAT(level.at("alarmLimits"), HasRows("high at 0"));
    level.at("alarmLimits[0].kind").set("low-low");
    level.at("alarmLimits[0].threshold").set("0.25");
    EXPECT_THAT(level.at("alarmLimits"), HasRows("low-low at 0.25"));
}

TEST_F(AlarmLimit, TellsThatItsNameHasChanged) {
    std::vector<bindings::PropertyController::Subscription> subscriptions;
    int changes = 0;
    const auto subscribe = [&](skill::SubElement& row) {
        subscriptions.push_back(
            row.subscribe(row.displayNamePropertyId(),
                          {.value = [&](bindings::Action, std::size_t) { ++changes; },
                           .state = {},
                           .visibility = {}}));
    };
    level.at("alarmLimits").property().forEachSubElement(subscribe);
    level.at("alarmLimits[0].kind").set("low");
    EXPECT_EQ(changes, 1);
    level.at("alarmLimits[0].threshold").set("3");
    EXPECT_EQ(changes, 2);
    level.at("alarmLimits[0].message").set("Tank is low");
    EXPECT_EQ(changes, 2);
}

TEST_F(AlarmLimit, OffersItsKinds) {
    EXPECT_THAT(level.at("alarmLimits[0].kind").choices(),
                ElementsAre("low-low", "low", "high", "high-high"));
    EXPECT_THAT(level.at("alarmLimits[0].kind"),
                Refuses("highest", "“highest” is not one of the choices."));
}

} // namespace
