#include "PumpStationTest.hpp"
#include <corvane/workbench/skill/AbstractElementFactory.hpp>

namespace {

using namespace pump_station::tests;
namespace skill = corvane::workbench::skill;

class SamplingTimer : public PumpStationTest {
protected:
    BenchElement plc = bench.add("PumpStation.Controller", "PLC");
    BenchElement timer = bench.add("PumpStation.SamplingTimer", "Timer");
};

TEST_F(SamplingTimer, StartsWithoutATask) {
    EXPECT_THAT(timer.settings(), ElementsAre("interval", "tasks"));
    EXPECT_THAT(timer.at("interval"), HasText("1s"));
    EXPECT_THAT(timer.at("tasks"), HasError("Add a task that the timer is to trigger."));
    EXPECT_THAT(bench, HasErrors(1));
}

TEST_F(SamplingTimer, NeedsAnIntervalOfAMillisecond) {
    timer.at("interval").set("999us");
    EXPECT_THAT(timer.at("interval"), HasError("The interval must not be shorter than 1ms."));
    timer.at("interval").set("1ms");
    EXPECT_THAT(timer.at("interval"), IsOk());
}

TEST_F(SamplingTimer, IsSatisfiedWithATaskThatResolves) {
    timer.at("tasks").insertRow(0);
    EXPECT_THAT(timer.at("tasks"), IsOk());
    EXPECT_THAT(timer.at("tasks"), Announced(R"(
        value       Timer.tasks: 1 row  (row 0 inserted)
        state       Timer.tasks: ok)"));
    EXPECT_THAT(bench, HasErrors(1)); // of the row
    timer.at("tasks[0].task").set("PLC.reconnect");
    EXPECT_THAT(bench, HasErrors(0));
    EXPECT_THAT(timer.at("tasks"), Announced("value       Timer.tasks: 1 row"));
}

TEST_F(SamplingTimer, KeepsTheOrderOfItsTasks) {
    plc.add("PumpStation.Pump", "[Pump 1.1]");
    timer.at("tasks").insertRow(0);
    timer.at("tasks").insertRow(0);
    timer.at("tasks[0].task").set("PLC.[Pump 1.1].start");
    timer.at("tasks[1].task").set("PLC.reconnect");
    bench.load(bench.saved());
    EXPECT_THAT(timer.at("tasks"), HasRows("PLC.[Pump 1.1].start", "PLC.reconnect"));
    EXPECT_THAT(bench, HasErrors(0));
}

TEST_F(SamplingTimer, IsCopiedWithItsTasks) {
    timer.at("tasks").insertRow(0);
    timer.at("tasks[0].task").set("PLC.reconnect");
    const std::unique_ptr<skill::Element> copy = bench.workbench()
                                                     .elementClasses()
                                                     .find("PumpStation.SamplingTimer")
                                                     ->factory()
                                                     .copyElement(*timer.node().skillElement());
    EXPECT_EQ(savedSettings(*copy), R"({"interval":"1s","tasks":["PLC.reconnect"]})");
    timer.at("tasks").removeRow(0);
    EXPECT_EQ(savedSettings(*copy), R"({"interval":"1s","tasks":["PLC.reconnect"]})");
}

TEST_F(SamplingTimer, OffersItsMembers) {
    EXPECT_THAT(timer.attributes(), IsEmpty());
    EXPECT_THAT(timer.events(), ElementsAre("elapsed"));
    EXPECT_THAT(timer.tasks(), IsEmpty());
}

} // namespace
