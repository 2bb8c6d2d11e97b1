#include "PumpStationTest.hpp"
#include <corvane/workbench/skill/AbstractElementFactory.hpp>

namespace {

using namespace pump_station::tests;
namespace skill = corvane::workbench::skill;

class Measurement : public PumpStationTest {
protected:
    BenchElement level =
        bench.add("PumpStation.Controller", "PLC").add("PumpStation.Measurement", "Level");

    /// Adds a limit that is complete.
    void addLimit(std::size_t index, std::string_view kind, std::string_view threshold) {
        const std::string row = "alarmLimits." + std::to_string(index) + ".";
        level.at("alarmLimits").insertRow(index);
        level.at(row + "kind").set(kind);
        level.at(row + "threshold").set(threshold);
        level.at(row + "message").set("Look at the tank");
    }
};

TEST_F(Measurement, StartsValid) {
    EXPECT_THAT(level.settings(),
                ElementsAre("unit", "channel", "rangeLow", "rangeHigh", "alarmLimits"));
    EXPECT_THAT(level.at("unit"), HasText("m"));
    EXPECT_THAT(level.at("channel"), HasText("1"));
    EXPECT_THAT(level.at("rangeLow"), HasText("0"));
    EXPECT_THAT(level.at("rangeHigh"), HasText("10"));
    EXPECT_THAT(level.at("alarmLimits"), HasText("no rows"));
    EXPECT_THAT(bench, HasErrors(0));
}

TEST_F(Measurement, NeedsAUnit) {
    level.at("unit").set("");
    EXPECT_THAT(level.at("unit"), HasError("Enter the unit of the measured value."));
}

TEST_F(Measurement, NeedsAChannelThatExists) {
    for (const char* channel : {"0", "513"}) {
        level.at("channel").set(channel);
        EXPECT_THAT(level.at("channel"), HasError("The channel must lie between 1 and 512."));
    }
    for (const char* channel : {"1", "512"}) {
        level.at("channel").set(channel);
        EXPECT_THAT(level.at("channel"), IsOk());
    }
}

TEST_F(Measurement, CountsAnInvalidValueUpToTheRoot) {
    level.at("channel").set("600");
    EXPECT_THAT(bench, Announced(R"(
        value       PLC.Level.channel: 600
        state       PLC.Level.channel: error: The channel must lie between 1 and 512.
        errors      PLC.Level: 1
        errors      PLC: 1
        errors      (root): 1)"));
}

TEST_F(Measurement, NeedsARangeThatIsNotEmpty) {
    level.at("rangeLow").set("10");
    EXPECT_THAT(level.at("rangeHigh"),
                HasError("The end of the measuring range must lie above its start."));
    EXPECT_THAT(bench, Announced(R"(
        value       PLC.Level.rangeLow: 10
        state       PLC.Level.rangeHigh: error: The end of the measuring range must lie above its start.
        errors      PLC.Level: 1
        errors      PLC: 1
        errors      (root): 1)"));
    level.at("rangeHigh").set("10.5");
    EXPECT_THAT(level.at("rangeHigh"), IsOk());
    EXPECT_THAT(level.at("rangeHigh"), Announced(R"(
        value       PLC.Level.rangeHigh: 10.5
        state       PLC.Level.rangeHigh: ok)"));
}

TEST_F(Measurement, RefusesWhatIsNoNumber) {
    for (const std::string number : {"", "high", "1,5", "inf", "nan", "1e400", " 1"}) {
        EXPECT_THAT(level.at("rangeHigh"), Refuses(number, "“" + number + "” is not a number."));
    }
    EXPECT_THAT(level.at("rangeHigh"), HasText("10"));
}

TEST_F(Measurement, ProposesALimitATenthOfTheRangeAboveTheLast) {
    addLimit(0, "low", "2.5");
    level.at("alarmLimits").insertRow(1);
    EXPECT_THAT(level.at("alarmLimits[1].threshold"), HasText("3.5"));
    EXPECT_THAT(level.at("alarmLimits[1].kind"), HasText("high"));
}

TEST_F(Measurement, ProposesZeroForTheFirstLimitAndOneBelowWhatBecomesTheSecond) {
    level.at("alarmLimits").insertRow(0);
    EXPECT_THAT(level.at("alarmLimits[0].threshold"), HasText("0"));
    level.at("alarmLimits[0].threshold").set("5");
    level.at("alarmLimits").insertRow(0);
    EXPECT_THAT(level.at("alarmLimits[0].threshold"), HasText("4"));
}

TEST_F(Measurement, ProposesByTheRangeOfTheMoment) {
    level.at("alarmLimits").insertRow(0);
    level.at("rangeHigh").set("40");
    level.at("alarmLimits").insertRow(1);
    EXPECT_THAT(level.at("alarmLimits[1].threshold"), HasText("4"));
}

TEST_F(Measurement, RaisesEveryChangeOfALimitAsOneOfItsList) {
    addLimit(0, "high", "8");
    for (const auto& [path, value] :
         {std::pair("alarmLimits.0.kind", "low"), std::pair("alarmLimits.0.threshold", "7"),
          std::pair("alarmLimits.0.delay", "3s"), std::pair("alarmLimits.0.message", "Look")}) {
        level.at(path).set(value);
        EXPECT_THAT(level.at("alarmLimits"), Announced("value       PLC.Level.alarmLimits: 1 row"))
            << path;
    }
}

TEST_F(Measurement, TellsOfRowsThatComeAndGo) {
    addLimit(0, "low", "2");
    const Setting limits = level.at("alarmLimits");
    limits.insertRow(1);
    EXPECT_THAT(limits, Announced("value       PLC.Level.alarmLimits: 2 rows  (row 1 inserted)"));
    limits.insertRow(2);
    EXPECT_THAT(limits, Announced(R"(
        value       PLC.Level.alarmLimits: 3 rows  (row 2 inserted)
        state       PLC.Level.alarmLimits: error: There must be no more than one limit “high”.)"));
    limits.removeRow(1);
    EXPECT_THAT(limits, Announced(R"(
        value       PLC.Level.alarmLimits: 2 rows  (row 1 removed)
        state       PLC.Level.alarmLimits: ok)"));
}

TEST_F(Measurement, RefusesRowsThatDoNotExist) {
    EXPECT_EQ(level.at("alarmLimits").tryInsertRow(1), "The list has no row of that number.");
    EXPECT_EQ(level.at("alarmLimits").tryRemoveRow(0), "The list has no row of that number.");
    EXPECT_THAT(level.at("alarmLimits"), HasText("no rows"));
}

TEST_F(Measurement, CountsItsRows) {
    addLimit(0, "low", "2");
    EXPECT_THAT(level.at("alarmLimits"), HasText("1 row"));
    addLimit(1, "high", "8");
    EXPECT_THAT(level.at("alarmLimits"), HasText("2 rows"));
}

TEST_F(Measurement, CountsTheErrorsOfItsRows) {
    level.at("alarmLimits").insertRow(0);
    EXPECT_THAT(bench, HasErrors(1)); // no message yet
    level.at("alarmLimits").insertRow(1);
    EXPECT_THAT(bench, HasErrors(3)); // another message, and two limits of one kind
    level.at("alarmLimits").removeRow(1);
    EXPECT_THAT(bench, HasErrors(1));
    level.at("alarmLimits").removeRow(0);
    EXPECT_THAT(bench, HasErrors(0));
}

TEST_F(Measurement, AcceptsOneLimitOfEachKind) {
    addLimit(0, "low-low", "1");
    addLimit(1, "low", "2");
    addLimit(2, "high", "8");
    addLimit(3, "high-high", "9");
    EXPECT_THAT(bench, HasErrors(0));
    level.at("alarmLimits[3].kind").set("low");
    EXPECT_THAT(level.at("alarmLimits"), HasError("There must be no more than one limit “low”."));
    EXPECT_THAT(bench, HasErrors(1));
}

TEST_F(Measurement, NeedsLimitsInTheOrderOfTheirKindsWhereverTheyStand) {
    addLimit(0, "high", "8");
    addLimit(1, "low", "2");
    EXPECT_THAT(level.at("alarmLimits"), IsOk());
    level.at("alarmLimits[1].threshold").set("8");
    EXPECT_THAT(level.at("alarmLimits"),
                HasError("The limit “high” must lie above the limit “low”."));
    level.at("alarmLimits[0].threshold").set("8.5");
    EXPECT_THAT(level.at("alarmLimits"), IsOk());
}

TEST_F(Measurement, LooksAtItsLimitsAgainWhenTheRangeChanges) {
    addLimit(0, "high", "8");
    const Setting threshold = level.at("alarmLimits[0].threshold");
    level.at("rangeHigh").set("7.5");
    EXPECT_THAT(bench, HasErrors(1));
    EXPECT_THAT(threshold, Announced("state       PLC.Level.alarmLimits.0.threshold: error: The "
                                     "threshold must lie within the measuring range, 0 to 7.5."));
    level.at("rangeHigh").set("8");
    EXPECT_THAT(threshold, Announced("state       PLC.Level.alarmLimits.0.threshold: ok"));
}

TEST_F(Measurement, KeepsItsLimits) {
    addLimit(0, "low", "2");
    addLimit(1, "high", "8.25");
    level.at("alarmLimits[1].delay").set("1.5m");
    const std::string written = bench.saved();
    bench.load(written);
    EXPECT_THAT(level.at("alarmLimits"), HasRows("low at 2", "high at 8.25"));
    EXPECT_THAT(level.at("alarmLimits[1].delay"), HasText("1.5m"));
    EXPECT_THAT(bench, HasErrors(0));
    EXPECT_EQ(bench.saved(), written);
}

TEST_F(Measurement, SavesNoListWithoutLimits) {
    EXPECT_THAT(bench.saved(), Not(HasSubstr("alarmLimits")));
}

TEST_F(Measurement, IsCopiedWithItsLimits) {
    addLimit(0, "high", "8");
    const skill::Element& original = *level.node().skillElement();
    const skill::AbstractElementFactory& factory =
        bench.workbench().elementClasses().find("PumpStation.Measurement")->factory();
    const std::unique_ptr<skill::Element> copy = factory.copyElement(original);
    const std::string settings = savedSettings(original);
    EXPECT_EQ(savedSettings(*copy), settings);
    level.at("unit").set("cm");
    level.at("alarmLimits[0].threshold").set("9");
    EXPECT_EQ(savedSettings(*copy), settings);
}

TEST_F(Measurement, GivesACopyLimitsWithinItsOwnRange) {
    addLimit(0, "high", "8");
    const std::unique_ptr<skill::Element> copy = bench.workbench()
                                                     .elementClasses()
                                                     .find("PumpStation.Measurement")
                                                     ->factory()
                                                     .copyElement(*level.node().skillElement());
    EXPECT_EQ(copy->propertyErrorCount(), 0U);
    level.at("rangeHigh").set("5");
    EXPECT_THAT(bench, HasErrors(1));
    EXPECT_EQ(copy->propertyErrorCount(), 0U);
}

TEST_F(Measurement, OffersItsMembers) {
    EXPECT_THAT(level.attributes(), ElementsAre("value", "quality", "sourceTime"));
    EXPECT_THAT(level.events(), ElementsAre("changed", "limitExceeded"));
    EXPECT_THAT(level.tasks(), IsEmpty());
}

} // namespace
