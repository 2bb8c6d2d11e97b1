#include "PumpStationTest.hpp"
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <map>

namespace {

using pump_station::tests::checkLines;
using pump_station::tests::configuration;
using pump_station::tests::PumpStationTest;
using pump_station::tests::readFile;
using testing::ElementsAre;
using testing::IsEmpty;
namespace host = corvane::workbench::host;

class Configurations : public PumpStationTest {
protected:
    /// How many elements of each class there are.
    static void countClasses(const host::ElementNode& top, std::map<std::string, int>& counts) {
        for (std::size_t index = 0; index < top.childCount(); ++index) {
            ++counts[std::string(top.child(index).elementClass().id())];
            countClasses(top.child(index), counts);
        }
    }
    /// The lines of a file of expected lines.
    static std::vector<std::string> expectedLines(std::string_view name) {
        std::vector<std::string> lines;
        const std::string text = readFile(configuration(name));
        for (std::size_t begin = 0; begin < text.size();) {
            const std::size_t end = text.find('\n', begin);
            lines.push_back(text.substr(begin, end - begin));
            begin = end + 1;
        }
        return lines;
    }
};

TEST_F(Configurations, ThePlantIsFreeOfProblems) {
    const host::LoadResult result = load(configuration("plant.json"));
    EXPECT_THAT(checkLines(workbench, result, "plant.json"), IsEmpty());
    EXPECT_TRUE(result.loaded);
    EXPECT_EQ(errorCount(), 0U);
    EXPECT_EQ(workbench.elementCount(), 78U);
}

TEST_F(Configurations, ThePlantUsesEveryElementClass) {
    load(configuration("plant.json"));
    std::map<std::string, int> counts;
    countClasses(workbench.root(), counts);
    EXPECT_THAT(
        counts,
        ElementsAre(std::pair("PumpStation.Area", 5), std::pair("PumpStation.Controller", 5),
                    std::pair("PumpStation.Measurement", 34),
                    std::pair("PumpStation.MeasurementGroup", 6), std::pair("PumpStation.Pump", 6),
                    std::pair("PumpStation.PumpBalancer", 2),
                    std::pair("PumpStation.SamplingTimer", 3), std::pair("PumpStation.Setpoint", 7),
                    std::pair("PumpStation.Valve", 10)));
}

TEST_F(Configurations, ThePlantIsSavedAsItWas) {
    load(configuration("plant.json"));
    EXPECT_EQ(saved(), readFile(configuration("plant.json")));
}

TEST_F(Configurations, TheReferencesOfThePlantResolve) {
    load(configuration("plant.json"));
    const auto usesOf = [this](std::string_view key) {
        return workbench.referencesTo(*workbench.findElement(key)).size();
    };
    EXPECT_EQ(usesOf("Station.Pump hall.PLC 1.[Pump 1.2]"), 2U); // two attributes
    EXPECT_EQ(usesOf("Station.Pump hall.PLC 1.[Pump 1.1]"), 1U); // the element itself
    EXPECT_EQ(usesOf("Station.Schedule.Night"), 1U);             // an event
    EXPECT_EQ(usesOf("Weather mast"), 1U);                       // a task
}

TEST_F(Configurations, ThePlantKeepsAReferenceIntoAnImport) {
    load(configuration("plant.json"));
    constexpr std::string_view kOpening = "Station.Reservoir.Reservoir PLC.[Valve 3.2].Opening";
    EXPECT_EQ(text(kOpening, "event"), ".import:Village.[Main 7.2].demand.changed");
    EXPECT_FALSE(visible(kOpening, "event"));
    EXPECT_EQ(state(kOpening, "event"), "");
}

TEST_F(Configurations, TheLegacyOneLoadsCountsOfMicroseconds) {
    const host::LoadResult result = load(configuration("legacy.json"));
    EXPECT_THAT(checkLines(workbench, result, "legacy.json"), IsEmpty());
    EXPECT_EQ(text("PLC", "pollInterval"), "250ms");
    EXPECT_EQ(text("PLC", "reconnectDelay"), "90s");
    EXPECT_EQ(text("Night", "interval"), "24h");
    EXPECT_EQ(text("Fast", "interval"), "1500µs");
}

TEST_F(Configurations, TheLegacyOneIsSavedWithUnits) {
    load(configuration("legacy.json"));
    const std::string text = saved();
    EXPECT_THAT(text, testing::HasSubstr("\"pollInterval\": \"250ms\",\n"));
    EXPECT_THAT(text, testing::HasSubstr("\"reconnectDelay\": \"90s\",\n"));
    EXPECT_THAT(text, testing::HasSubstr("\"interval\": \"24h\",\n"));
    EXPECT_THAT(text, testing::HasSubstr("\"interval\": \"1500µs\",\n"));
    EXPECT_TRUE(loadText(text));
    EXPECT_EQ(saved(), text);
}

TEST_F(Configurations, TheDanglingOneLoadsWithAProblemForEachKey) {
    const host::LoadResult result = load(configuration("dangling.json"));
    EXPECT_TRUE(result.loaded);
    EXPECT_EQ(checkLines(workbench, result, configuration("dangling.json")),
              expectedLines("dangling.expected"));
    // The ninth key belongs to a property that is hidden.
    EXPECT_EQ(result.problems.size(), 9U);
    EXPECT_EQ(errorCount(), 8U);
}

TEST_F(Configurations, TheDanglingOneKeepsItsKeysWhenSaved) {
    load(configuration("dangling.json"));
    EXPECT_EQ(saved(), readFile(configuration("dangling.json")));
}

TEST_F(Configurations, TheImportOneKeepsItsReferencesUnresolved) {
    const host::LoadResult result = load(configuration("import.json"));
    EXPECT_TRUE(result.loaded);
    EXPECT_THAT(result.problems, IsEmpty());
    EXPECT_EQ(errorCount(), 5U);
    EXPECT_EQ(state("Balancer", "pump"), "internal error: unresolved cross reference from import");
    EXPECT_EQ(text("Balancer", "inputs.0.attribute"), ".import:PLC.[Pump 1.1].[vibration.x]");
    EXPECT_EQ(saved(), readFile(configuration("import.json")));
}

TEST_F(Configurations, TheImportOneResolvesItsReferencesOnRequest) {
    const host::LoadResult result =
        load(configuration("import.json"), {.resolveImportReferences = true});
    EXPECT_THAT(checkLines(workbench, result, "import.json"), IsEmpty());
    EXPECT_EQ(text("Balancer", "pump"), "PLC.[Pump 1.1]");
    EXPECT_EQ(text("PLC.Level", "event"), "PLC.[Pump 1.1].tripped");
    EXPECT_EQ(rows("Timer", "tasks"),
              (std::vector<std::string>{"PLC.[Pump 1.1].start", "Balancer.rebalance"}));
    EXPECT_THAT(saved(), testing::Not(testing::HasSubstr(".import:")));
}

} // namespace
