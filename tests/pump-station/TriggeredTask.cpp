#include "PumpStationTest.hpp"

namespace {

using pump_station::tests::PumpStationTest;
using testing::ElementsAre;

class TriggeredTask : public PumpStationTest {
protected:
    TriggeredTask() {
        add("", "PumpStation.Controller", "PLC");
        add("", "PumpStation.SamplingTimer", "Timer");
        EXPECT_EQ(insertRow("Timer", "tasks", 0), "");
    }
};

TEST_F(TriggeredTask, StartsEmpty) {
    EXPECT_THAT(rows("Timer", "tasks"), ElementsAre("no task"));
    EXPECT_EQ(state("Timer", "tasks.0.task"), "empty task key");
}

TEST_F(TriggeredTask, IsNamedAfterItsTask) {
    EXPECT_EQ(refer("Timer", "tasks.0.task", "PLC.reconnect"), "");
    EXPECT_THAT(rows("Timer", "tasks"), ElementsAre("PLC.reconnect"));
    EXPECT_EQ(state("Timer", "tasks.0.task"), "");
}

TEST_F(TriggeredTask, SaysWhyItsTaskDoesNotResolve) {
    EXPECT_EQ(refer("Timer", "tasks.0.task", "PLC.restart"), "");
    EXPECT_EQ(state("Timer", "tasks.0.task"),
              "the element “PLC” does not have a task named “restart”");
    EXPECT_EQ(refer("Timer", "tasks.0.task", "PLC"), "");
    EXPECT_EQ(state("Timer", "tasks.0.task"), "missing task name");
}

TEST_F(TriggeredTask, FollowsItsTask) {
    EXPECT_EQ(refer("Timer", "tasks.0.task", "PLC.reconnect"), "");
    EXPECT_TRUE(workbench.rename("PLC", "[PLC 1.1]"));
    EXPECT_THAT(rows("Timer", "tasks"), ElementsAre("[PLC 1.1].reconnect"));
}

TEST_F(TriggeredTask, IsSetByTheWorkbenchAlone) {
    EXPECT_FALSE(property("Timer", "tasks.0.task").setText);
}

} // namespace
