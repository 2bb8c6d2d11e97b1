#include "PumpStationTest.hpp"
#include <corvane/workbench/skill/AbstractElementFactory.hpp>

namespace {

using pump_station::tests::PumpStationTest;
using pump_station::tests::savedSettings;
using testing::ElementsAre;
namespace skill = corvane::workbench::skill;

class SamplingTimer : public PumpStationTest {
protected:
    SamplingTimer() {
        add("", "PumpStation.Controller", "PLC");
        add("", "PumpStation.SamplingTimer", "Timer");
    }
};

TEST_F(SamplingTimer, StartsWithoutATask) {
    EXPECT_THAT(propertyNames("Timer"), ElementsAre("interval", "tasks"));
    EXPECT_EQ(text("Timer", "interval"), "1s");
    EXPECT_EQ(state("Timer", "tasks"), "Add a task that the timer is to trigger.");
    EXPECT_EQ(errorCount(), 1U);
}

TEST_F(SamplingTimer, NeedsAnIntervalOfAMillisecond) {
    EXPECT_EQ(set("Timer", "interval", "999us"), "");
    EXPECT_EQ(state("Timer", "interval"), "The interval must not be shorter than 1ms.");
    EXPECT_EQ(set("Timer", "interval", "1ms"), "");
    EXPECT_EQ(state("Timer", "interval"), "");
}

TEST_F(SamplingTimer, IsSatisfiedWithATaskThatResolves) {
    record("Timer", "tasks");
    EXPECT_EQ(insertRow("Timer", "tasks", 0), "");
    EXPECT_EQ(state("Timer", "tasks"), "");
    EXPECT_EQ(errorCount(), 1U); // of the row
    EXPECT_EQ(refer("Timer", "tasks.0.task", "PLC.reconnect"), "");
    EXPECT_EQ(errorCount(), 0U);
    EXPECT_THAT(calls, ElementsAre("tasks value Insert 0", "tasks state ", "tasks value Update 0"));
}

TEST_F(SamplingTimer, KeepsTheOrderOfItsTasks) {
    add("PLC", "PumpStation.Pump", "[Pump 1.1]");
    EXPECT_EQ(insertRow("Timer", "tasks", 0), "");
    EXPECT_EQ(insertRow("Timer", "tasks", 0), "");
    EXPECT_EQ(refer("Timer", "tasks.0.task", "PLC.[Pump 1.1].start"), "");
    EXPECT_EQ(refer("Timer", "tasks.1.task", "PLC.reconnect"), "");
    EXPECT_TRUE(loadText(saved()));
    EXPECT_THAT(rows("Timer", "tasks"), ElementsAre("PLC.[Pump 1.1].start", "PLC.reconnect"));
    EXPECT_EQ(errorCount(), 0U);
}

TEST_F(SamplingTimer, IsCopiedWithItsTasks) {
    EXPECT_EQ(insertRow("Timer", "tasks", 0), "");
    EXPECT_EQ(refer("Timer", "tasks.0.task", "PLC.reconnect"), "");
    const std::unique_ptr<skill::Element> copy =
        workbench.elementClasses()
            .find("PumpStation.SamplingTimer")
            ->factory()
            .copyElement(*workbench.findElement("Timer")->skillElement());
    EXPECT_EQ(savedSettings(*copy), R"({"interval":"1s","tasks":["PLC.reconnect"]})");
    EXPECT_EQ(removeRow("Timer", "tasks", 0), "");
    EXPECT_EQ(savedSettings(*copy), R"({"interval":"1s","tasks":["PLC.reconnect"]})");
}

TEST_F(SamplingTimer, OffersItsMembers) {
    EXPECT_THAT(attributes("Timer"), testing::IsEmpty());
    EXPECT_THAT(events("Timer"), ElementsAre("elapsed"));
    EXPECT_THAT(tasks("Timer"), testing::IsEmpty());
}

} // namespace
