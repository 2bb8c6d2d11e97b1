#include "PumpStationTest.hpp"

namespace {

using pump_station::tests::PumpStationTest;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::string_view kTarget = "PLC.Target";

class Setpoint : public PumpStationTest {
protected:
    Setpoint() {
        add("", "PumpStation.Controller", "PLC");
        add("PLC", "PumpStation.Setpoint", "Target");
    }
};

TEST_F(Setpoint, StartsValid) {
    EXPECT_THAT(propertyNames(kTarget),
                ElementsAre("unit", "rangeLow", "rangeHigh", "mode", "value", "event"));
    EXPECT_EQ(text(kTarget, "mode"), "fixed");
    EXPECT_EQ(text(kTarget, "value"), "0");
    EXPECT_EQ(errorCount(), 0U);
}

TEST_F(Setpoint, NeedsAUnit) {
    EXPECT_EQ(set(kTarget, "unit", ""), "");
    EXPECT_EQ(state(kTarget, "unit"), "Enter the unit of the wanted value.");
}

TEST_F(Setpoint, NeedsARangeThatIsNotEmpty) {
    EXPECT_EQ(set(kTarget, "mode", "follow"), "");
    EXPECT_EQ(refer(kTarget, "event", "PLC.connected"), "");
    EXPECT_EQ(set(kTarget, "rangeLow", "10"), "");
    EXPECT_EQ(state(kTarget, "rangeHigh"), "The highest value must lie above the lowest.");
    EXPECT_EQ(errorCount(), 1U);
}

TEST_F(Setpoint, NeedsAValueWithinTheRange) {
    EXPECT_EQ(set(kTarget, "value", "10.5"), "");
    EXPECT_EQ(state(kTarget, "value"), "The value must lie between 0 and 10.");
    EXPECT_EQ(set(kTarget, "rangeHigh", "10.5"), "");
    EXPECT_EQ(state(kTarget, "value"), "");
    EXPECT_EQ(set(kTarget, "rangeLow", "10.6"), "");
    EXPECT_EQ(state(kTarget, "value"), "The value must lie between 10.6 and 10.5.");
}

TEST_F(Setpoint, ShowsEitherTheValueOrTheEvent) {
    EXPECT_TRUE(visible(kTarget, "value"));
    EXPECT_FALSE(visible(kTarget, "event"));
    EXPECT_EQ(set(kTarget, "mode", "follow"), "");
    EXPECT_FALSE(visible(kTarget, "value"));
    EXPECT_TRUE(visible(kTarget, "event"));
}

TEST_F(Setpoint, NeedsAnEventToFollow) {
    EXPECT_EQ(set(kTarget, "mode", "follow"), "");
    EXPECT_EQ(state(kTarget, "event"), "empty event key");
    EXPECT_EQ(errorCount(), 1U);
    EXPECT_EQ(refer(kTarget, "event", "PLC.disconnected"), "");
    EXPECT_EQ(state(kTarget, "event"), "");
    EXPECT_EQ(text(kTarget, "event"), "PLC.disconnected");
    EXPECT_EQ(errorCount(), 0U);
}

TEST_F(Setpoint, FollowsChangesOfAnAttributeToo) {
    add("PLC", "PumpStation.Measurement", "Level");
    EXPECT_EQ(set(kTarget, "mode", "follow"), "");
    EXPECT_EQ(refer(kTarget, "event", "PLC.Level.value"), "");
    EXPECT_EQ(state(kTarget, "event"), "");
    EXPECT_EQ(refer(kTarget, "event", "PLC.Level.level"), "");
    EXPECT_EQ(state(kTarget, "event"),
              "the element “PLC.Level” does not have an event or attribute named “level”");
}

TEST_F(Setpoint, FollowsTheEventThroughRenamesAndRemovals) {
    add("PLC", "PumpStation.Measurement", "Level");
    EXPECT_EQ(set(kTarget, "mode", "follow"), "");
    EXPECT_EQ(refer(kTarget, "event", "PLC.Level.limitExceeded"), "");
    record(kTarget, "event");
    EXPECT_TRUE(workbench.rename("PLC.Level", "[Level 3.1]"));
    EXPECT_EQ(text(kTarget, "event"), "PLC.[Level 3.1].limitExceeded");
    EXPECT_TRUE(workbench.remove("PLC.[Level 3.1]"));
    EXPECT_THAT(calls,
                ElementsAre("event value Update 0", "event state the element “PLC” does not have a "
                                                    "child named “[Level 3.1]”"));
    EXPECT_THAT(saved(), HasSubstr("\"event\": \"PLC.[Level 3.1].limitExceeded\""));
}

TEST_F(Setpoint, SavesNoEventWhenThereIsNone) {
    EXPECT_THAT(saved(), testing::Not(HasSubstr("\"event\"")));
}

TEST_F(Setpoint, OffersItsMembers) {
    EXPECT_THAT(attributes(kTarget), ElementsAre("value", "writeTime"));
    EXPECT_THAT(events(kTarget), ElementsAre("changed"));
    EXPECT_THAT(tasks(kTarget), testing::IsEmpty());
}

} // namespace
