#include "PumpStationTest.hpp"

namespace {

using namespace pump_station::tests;

class TriggeredTask : public PumpStationTest {
protected:
    TriggeredTask() { timer.at("tasks").insertRow(0); }

    BenchElement plc = bench.add("PumpStation.Controller", "PLC");
    BenchElement timer = bench.add("PumpStation.SamplingTimer", "Timer");
};

TEST_F(TriggeredTask, StartsEmpty) {
    EXPECT_THAT(timer.at("tasks"), HasRows("no task"));
    EXPECT_THAT(timer.at("tasks[0].task"), HasError("empty task key"));
}

TEST_F(TriggeredTask, IsNamedAfterItsTask) {
    timer.at("tasks[0].task").set("PLC.reconnect");
    EXPECT_THAT(timer.at("tasks"), HasRows("PLC.reconnect"));
    EXPECT_THAT(timer.at("tasks[0].task"), IsOk());
}

TEST_F(TriggeredTask, SaysWhyItsTaskDoesNotResolve) {
    timer.at("tasks[0].task").set("PLC.restart");
    EXPECT_THAT(timer.at("tasks[0].task"),
                HasError("the element “PLC” does not have a task named “restart”"));
    timer.at("tasks[0].task").set("PLC");
    EXPECT_THAT(timer.at("tasks[0].task"), HasError("missing task name"));
}

TEST_F(TriggeredTask, FollowsItsTask) {
    timer.at("tasks[0].task").set("PLC.reconnect");
    plc.rename("[PLC 1.1]");
    EXPECT_THAT(timer.at("tasks"), HasRows("[PLC 1.1].reconnect"));
}

TEST_F(TriggeredTask, IsSetByTheWorkbenchAlone) {
    EXPECT_FALSE(timer.at("tasks[0].task").property().setText);
}

} // namespace
