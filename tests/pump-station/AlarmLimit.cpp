#include "PumpStationTest.hpp"
#include <corvane/workbench/skill/SubElement.hpp>

namespace {

using pump_station::tests::PumpStationTest;
using testing::ElementsAre;
namespace bindings = corvane::workbench::bindings;
namespace skill = corvane::workbench::skill;

constexpr std::string_view kLevel = "PLC.Level";

class AlarmLimit : public PumpStationTest {
protected:
    AlarmLimit() {
        add("", "PumpStation.Controller", "PLC");
        add("PLC", "PumpStation.Measurement", "Level");
        EXPECT_EQ(insertRow(kLevel, "alarmLimits", 0), "");
    }
};

TEST_F(AlarmLimit, NeedsAMessage) {
    EXPECT_EQ(state(kLevel, "alarmLimits.0.message"), "Enter the message that the operator reads.");
    EXPECT_EQ(set(kLevel, "alarmLimits.0.message", "Tank is full"), "");
    EXPECT_EQ(state(kLevel, "alarmLimits.0.message"), "");
}

TEST_F(AlarmLimit, NeedsAThresholdWithinTheRange) {
    for (const char* threshold : {"-0.5", "10.5"}) {
        EXPECT_EQ(set(kLevel, "alarmLimits.0.threshold", threshold), "");
        EXPECT_EQ(state(kLevel, "alarmLimits.0.threshold"),
                  "The threshold must lie within the measuring range, 0 to 10.");
    }
    for (const char* threshold : {"0", "10"}) {
        EXPECT_EQ(set(kLevel, "alarmLimits.0.threshold", threshold), "");
        EXPECT_EQ(state(kLevel, "alarmLimits.0.threshold"), "");
    }
}

TEST_F(AlarmLimit, NeedsADelayThatIsNotNegative) {
    EXPECT_EQ(set(kLevel, "alarmLimits.0.delay", "-1ms"), "");
    EXPECT_EQ(state(kLevel, "alarmLimits.0.delay"), "The delay must not be negative.");
    EXPECT_EQ(set(kLevel, "alarmLimits.0.delay", "0"), "");
    EXPECT_EQ(state(kLevel, "alarmLimits.0.delay"), "");
}

TEST_F(AlarmLimit, IsNamedAfterItsKindAndThreshold) {
    EXPECT_THAT(rows(kLevel, "alarmLimits"), ElementsAre("high at 0"));
    EXPECT_EQ(set(kLevel, "alarmLimits.0.kind", "low-low"), "");
    EXPECT_EQ(set(kLevel, "alarmLimits.0.threshold", "0.25"), "");
    EXPECT_THAT(rows(kLevel, "alarmLimits"), ElementsAre("low-low at 0.25"));
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
    property(kLevel, "alarmLimits").forEachSubElement(subscribe);
    EXPECT_EQ(set(kLevel, "alarmLimits.0.kind", "low"), "");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(set(kLevel, "alarmLimits.0.threshold", "3"), "");
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(set(kLevel, "alarmLimits.0.message", "Tank is low"), "");
    EXPECT_EQ(changes, 2);
}

TEST_F(AlarmLimit, OffersItsKinds) {
    EXPECT_THAT(property(kLevel, "alarmLimits.0.kind").choices,
                ElementsAre(L"low-low", L"low", L"high", L"high-high"));
    EXPECT_EQ(set(kLevel, "alarmLimits.0.kind", "highest"), "“highest” is not one of the choices.");
}

} // namespace
