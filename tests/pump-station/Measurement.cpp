#include "PumpStationTest.hpp"
#include <corvane/workbench/skill/AbstractElementFactory.hpp>

namespace {

using pump_station::tests::PumpStationTest;
using pump_station::tests::savedSettings;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
namespace skill = corvane::workbench::skill;

constexpr std::string_view kLevel = "PLC.Level";

class Measurement : public PumpStationTest {
protected:
    Measurement() {
        add("", "PumpStation.Controller", "PLC");
        add("PLC", "PumpStation.Measurement", "Level");
    }
    /// Adds a limit that is complete.
    void addLimit(std::size_t index, std::string_view kind, std::string_view threshold) {
        const std::string row = "alarmLimits." + std::to_string(index) + ".";
        EXPECT_EQ(insertRow(kLevel, "alarmLimits", index), "");
        EXPECT_EQ(set(kLevel, row + "kind", kind), "");
        EXPECT_EQ(set(kLevel, row + "threshold", threshold), "");
        EXPECT_EQ(set(kLevel, row + "message", "Look at the tank"), "");
    }
};

TEST_F(Measurement, StartsValid) {
    EXPECT_THAT(propertyNames(kLevel),
                ElementsAre("unit", "channel", "rangeLow", "rangeHigh", "alarmLimits"));
    EXPECT_EQ(text(kLevel, "unit"), "m");
    EXPECT_EQ(text(kLevel, "channel"), "1");
    EXPECT_EQ(text(kLevel, "rangeLow"), "0");
    EXPECT_EQ(text(kLevel, "rangeHigh"), "10");
    EXPECT_EQ(text(kLevel, "alarmLimits"), "no rows");
    EXPECT_EQ(errorCount(), 0U);
}

TEST_F(Measurement, NeedsAUnit) {
    EXPECT_EQ(set(kLevel, "unit", ""), "");
    EXPECT_EQ(state(kLevel, "unit"), "Enter the unit of the measured value.");
}

TEST_F(Measurement, NeedsAChannelThatExists) {
    for (const char* channel : {"0", "513"}) {
        EXPECT_EQ(set(kLevel, "channel", channel), "");
        EXPECT_EQ(state(kLevel, "channel"), "The channel must lie between 1 and 512.");
    }
    for (const char* channel : {"1", "512"}) {
        EXPECT_EQ(set(kLevel, "channel", channel), "");
        EXPECT_EQ(state(kLevel, "channel"), "");
    }
}

TEST_F(Measurement, CountsAnInvalidValueUpToTheRoot) {
    record(kLevel, "channel");
    recordErrorCount(kLevel);
    recordErrorCount("PLC");
    recordErrorCount("");
    EXPECT_EQ(set(kLevel, "channel", "600"), "");
    EXPECT_THAT(calls, ElementsAre("channel value Update 0",
                                   "channel state The channel must lie between 1 and 512.",
                                   "Level errors 1", "PLC errors 1", "root errors 1"));
}

TEST_F(Measurement, NeedsARangeThatIsNotEmpty) {
    record(kLevel, "rangeHigh");
    EXPECT_EQ(set(kLevel, "rangeLow", "10"), "");
    EXPECT_EQ(state(kLevel, "rangeHigh"),
              "The end of the measuring range must lie above its start.");
    EXPECT_EQ(set(kLevel, "rangeHigh", "10.5"), "");
    EXPECT_EQ(state(kLevel, "rangeHigh"), "");
    EXPECT_THAT(calls, ElementsAre("rangeHigh state The end of the measuring range must lie above "
                                   "its start.",
                                   "rangeHigh value Update 0", "rangeHigh state "));
}

TEST_F(Measurement, RefusesWhatIsNoNumber) {
    for (const std::string number : {"", "high", "1,5", "inf", "nan", "1e400", " 1"}) {
        EXPECT_EQ(set(kLevel, "rangeHigh", number), "“" + number + "” is not a number.");
    }
    EXPECT_EQ(text(kLevel, "rangeHigh"), "10");
}

TEST_F(Measurement, ProposesALimitATenthOfTheRangeAboveTheLast) {
    addLimit(0, "low", "2.5");
    EXPECT_EQ(insertRow(kLevel, "alarmLimits", 1), "");
    EXPECT_EQ(text(kLevel, "alarmLimits.1.threshold"), "3.5");
    EXPECT_EQ(text(kLevel, "alarmLimits.1.kind"), "high");
}

TEST_F(Measurement, ProposesZeroForTheFirstLimitAndOneBelowWhatBecomesTheSecond) {
    EXPECT_EQ(insertRow(kLevel, "alarmLimits", 0), "");
    EXPECT_EQ(text(kLevel, "alarmLimits.0.threshold"), "0");
    EXPECT_EQ(set(kLevel, "alarmLimits.0.threshold", "5"), "");
    EXPECT_EQ(insertRow(kLevel, "alarmLimits", 0), "");
    EXPECT_EQ(text(kLevel, "alarmLimits.0.threshold"), "4");
}

TEST_F(Measurement, ProposesByTheRangeOfTheMoment) {
    EXPECT_EQ(insertRow(kLevel, "alarmLimits", 0), "");
    EXPECT_EQ(set(kLevel, "rangeHigh", "40"), "");
    EXPECT_EQ(insertRow(kLevel, "alarmLimits", 1), "");
    EXPECT_EQ(text(kLevel, "alarmLimits.1.threshold"), "4");
}

TEST_F(Measurement, RaisesEveryChangeOfALimitAsOneOfItsList) {
    addLimit(0, "high", "8");
    record(kLevel, "alarmLimits");
    for (const auto& [path, value] :
         {std::pair("alarmLimits.0.kind", "low"), std::pair("alarmLimits.0.threshold", "7"),
          std::pair("alarmLimits.0.delay", "3s"), std::pair("alarmLimits.0.message", "Look")}) {
        calls.clear();
        EXPECT_EQ(set(kLevel, path, value), "");
        EXPECT_THAT(calls, ElementsAre("alarmLimits value Update 0")) << path;
    }
}

TEST_F(Measurement, TellsOfRowsThatComeAndGo) {
    addLimit(0, "low", "2");
    record(kLevel, "alarmLimits");
    EXPECT_EQ(insertRow(kLevel, "alarmLimits", 1), "");
    EXPECT_EQ(insertRow(kLevel, "alarmLimits", 2), "");
    EXPECT_EQ(removeRow(kLevel, "alarmLimits", 1), "");
    EXPECT_THAT(calls, ElementsAre("alarmLimits value Insert 1", "alarmLimits value Insert 2",
                                   "alarmLimits state There must be no more than one limit “high”.",
                                   "alarmLimits value Remove 1", "alarmLimits state "));
}

TEST_F(Measurement, RefusesRowsThatDoNotExist) {
    EXPECT_EQ(insertRow(kLevel, "alarmLimits", 1), "The list has no row of that number.");
    EXPECT_EQ(removeRow(kLevel, "alarmLimits", 0), "The list has no row of that number.");
    EXPECT_EQ(text(kLevel, "alarmLimits"), "no rows");
}

TEST_F(Measurement, CountsItsRows) {
    addLimit(0, "low", "2");
    EXPECT_EQ(text(kLevel, "alarmLimits"), "1 row");
    addLimit(1, "high", "8");
    EXPECT_EQ(text(kLevel, "alarmLimits"), "2 rows");
}

TEST_F(Measurement, CountsTheErrorsOfItsRows) {
    EXPECT_EQ(insertRow(kLevel, "alarmLimits", 0), "");
    EXPECT_EQ(errorCount(), 1U); // no message yet
    EXPECT_EQ(insertRow(kLevel, "alarmLimits", 1), "");
    EXPECT_EQ(errorCount(), 3U); // another message, and two limits of one kind
    EXPECT_EQ(removeRow(kLevel, "alarmLimits", 1), "");
    EXPECT_EQ(errorCount(), 1U);
    EXPECT_EQ(removeRow(kLevel, "alarmLimits", 0), "");
    EXPECT_EQ(errorCount(), 0U);
}

TEST_F(Measurement, AcceptsOneLimitOfEachKind) {
    addLimit(0, "low-low", "1");
    addLimit(1, "low", "2");
    addLimit(2, "high", "8");
    addLimit(3, "high-high", "9");
    EXPECT_EQ(errorCount(), 0U);
    EXPECT_EQ(set(kLevel, "alarmLimits.3.kind", "low"), "");
    EXPECT_EQ(state(kLevel, "alarmLimits"), "There must be no more than one limit “low”.");
    EXPECT_EQ(errorCount(), 1U);
}

TEST_F(Measurement, NeedsLimitsInTheOrderOfTheirKindsWhereverTheyStand) {
    addLimit(0, "high", "8");
    addLimit(1, "low", "2");
    EXPECT_EQ(state(kLevel, "alarmLimits"), "");
    EXPECT_EQ(set(kLevel, "alarmLimits.1.threshold", "8"), "");
    EXPECT_EQ(state(kLevel, "alarmLimits"), "The limit “high” must lie above the limit “low”.");
    EXPECT_EQ(set(kLevel, "alarmLimits.0.threshold", "8.5"), "");
    EXPECT_EQ(state(kLevel, "alarmLimits"), "");
}

TEST_F(Measurement, LooksAtItsLimitsAgainWhenTheRangeChanges) {
    addLimit(0, "high", "8");
    record(kLevel, "alarmLimits.0.threshold");
    EXPECT_EQ(set(kLevel, "rangeHigh", "7.5"), "");
    EXPECT_EQ(errorCount(), 1U);
    EXPECT_EQ(set(kLevel, "rangeHigh", "8"), "");
    EXPECT_THAT(calls, ElementsAre("alarmLimits.0.threshold state The threshold must lie within "
                                   "the measuring range, 0 to 7.5.",
                                   "alarmLimits.0.threshold state "));
}

TEST_F(Measurement, KeepsItsLimits) {
    addLimit(0, "low", "2");
    addLimit(1, "high", "8.25");
    EXPECT_EQ(set(kLevel, "alarmLimits.1.delay", "1.5m"), "");
    const std::string written = saved();
    EXPECT_TRUE(loadText(written));
    EXPECT_THAT(rows(kLevel, "alarmLimits"), ElementsAre("low at 2", "high at 8.25"));
    EXPECT_EQ(text(kLevel, "alarmLimits.1.delay"), "1.5m");
    EXPECT_EQ(errorCount(), 0U);
    EXPECT_EQ(saved(), written);
}

TEST_F(Measurement, SavesNoListWithoutLimits) {
    EXPECT_THAT(saved(), testing::Not(HasSubstr("alarmLimits")));
}

TEST_F(Measurement, IsCopiedWithItsLimits) {
    addLimit(0, "high", "8");
    const skill::Element& original = *workbench.findElement(kLevel)->skillElement();
    const skill::AbstractElementFactory& factory =
        workbench.elementClasses().find("PumpStation.Measurement")->factory();
    const std::unique_ptr<skill::Element> copy = factory.copyElement(original);
    const std::string settings = savedSettings(original);
    EXPECT_EQ(savedSettings(*copy), settings);
    EXPECT_EQ(set(kLevel, "unit", "cm"), "");
    EXPECT_EQ(set(kLevel, "alarmLimits.0.threshold", "9"), "");
    EXPECT_EQ(savedSettings(*copy), settings);
}

TEST_F(Measurement, GivesACopyLimitsWithinItsOwnRange) {
    addLimit(0, "high", "8");
    const std::unique_ptr<skill::Element> copy =
        workbench.elementClasses()
            .find("PumpStation.Measurement")
            ->factory()
            .copyElement(*workbench.findElement(kLevel)->skillElement());
    EXPECT_EQ(copy->propertyErrorCount(), 0U);
    EXPECT_EQ(set(kLevel, "rangeHigh", "5"), "");
    EXPECT_EQ(errorCount(), 1U);
    EXPECT_EQ(copy->propertyErrorCount(), 0U);
}

TEST_F(Measurement, OffersItsMembers) {
    EXPECT_THAT(attributes(kLevel), ElementsAre("value", "quality", "sourceTime"));
    EXPECT_THAT(events(kLevel), ElementsAre("changed", "limitExceeded"));
    EXPECT_THAT(tasks(kLevel), IsEmpty());
}

} // namespace
