#include "PumpStationTest.hpp"
#include <corvane/workbench/host/ElementNode.hpp>

#include <map>

namespace {

using namespace pump_station::tests;
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
    bench.loadFile(configuration("plant.json"));
    EXPECT_THAT(bench.problems(), IsEmpty());
    EXPECT_THAT(bench, HasErrors(0));
    EXPECT_EQ(bench.workbench().elementCount(), 78U);
}

TEST_F(Configurations, ThePlantUsesEveryElementClass) {
    bench.loadFile(configuration("plant.json"));
    std::map<std::string, int> counts;
    countClasses(bench.workbench().root(), counts);
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
    bench.loadFile(configuration("plant.json"));
    EXPECT_EQ(bench.saved(), readFile(configuration("plant.json")));
}

TEST_F(Configurations, TheReferencesOfThePlantResolve) {
    bench.loadFile(configuration("plant.json"));
    // Two attributes, the element itself, an event, a task.
    EXPECT_THAT(bench.element("Station.Pump hall.PLC 1.[Pump 1.2]").referrers(),
                ElementsAre("Station.Pump hall.Balancer 1.inputs.2.attribute",
                            "Station.Pump hall.Balancer 1.inputs.3.attribute"));
    EXPECT_THAT(bench.element("Station.Pump hall.PLC 1.[Pump 1.1]").referrers(),
                ElementsAre("Station.Pump hall.Balancer 1.pump"));
    EXPECT_THAT(bench.element("Station.Schedule.Night").referrers(),
                ElementsAre("Station.Reservoir.Reservoir PLC.Refill level.event"));
    EXPECT_THAT(bench.element("Weather mast").referrers(),
                ElementsAre("Station.Schedule.Link check.tasks.2.task"));
}

TEST_F(Configurations, ThePlantKeepsAReferenceIntoAnImport) {
    bench.loadFile(configuration("plant.json"));
    const auto event = bench.at("Station.Reservoir.Reservoir PLC.[Valve 3.2].Opening.event");
    EXPECT_THAT(event, HasText(".import:Village.[Main 7.2].demand.changed"));
    EXPECT_THAT(event, IsHidden());
    EXPECT_THAT(event, IsOk());
}

TEST_F(Configurations, TheLegacyOneLoadsCountsOfMicroseconds) {
    bench.loadFile(configuration("legacy.json"));
    EXPECT_THAT(bench.problems(), IsEmpty());
    EXPECT_THAT(bench.at("PLC.pollInterval"), HasText("250ms"));
    EXPECT_THAT(bench.at("PLC.reconnectDelay"), HasText("90s"));
    EXPECT_THAT(bench.at("Night.interval"), HasText("24h"));
    EXPECT_THAT(bench.at("Fast.interval"), HasText("1500µs"));
}

TEST_F(Configurations, TheLegacyOneIsSavedWithUnits) {
    bench.loadFile(configuration("legacy.json"));
    const std::string text = bench.saved();
    EXPECT_THAT(text, HasSubstr("\"pollInterval\": \"250ms\",\n"));
    EXPECT_THAT(text, HasSubstr("\"reconnectDelay\": \"90s\",\n"));
    EXPECT_THAT(text, HasSubstr("\"interval\": \"24h\",\n"));
    EXPECT_THAT(text, HasSubstr("\"interval\": \"1500µs\",\n"));
    bench.load(text);
    EXPECT_EQ(bench.saved(), text);
}

TEST_F(Configurations, TheDanglingOneLoadsWithAProblemForEachKey) {
    const host::LoadResult result = bench.tryLoadFile(configuration("dangling.json"));
    EXPECT_TRUE(result.loaded);
    EXPECT_EQ(bench.problems(), expectedLines("dangling.expected"));
    // The ninth key belongs to a property that is hidden.
    EXPECT_EQ(result.problems.size(), 9U);
    EXPECT_THAT(bench, HasErrors(8));
}

TEST_F(Configurations, TheDanglingOneKeepsItsKeysWhenSaved) {
    bench.loadFile(configuration("dangling.json"));
    EXPECT_EQ(bench.saved(), readFile(configuration("dangling.json")));
}

TEST_F(Configurations, TheImportOneKeepsItsReferencesUnresolved) {
    const host::LoadResult result = bench.tryLoadFile(configuration("import.json"));
    EXPECT_TRUE(result.loaded);
    EXPECT_THAT(result.problems, IsEmpty());
    EXPECT_THAT(bench, HasErrors(5));
    EXPECT_THAT(bench.at("Balancer.pump"),
                HasError("internal error: unresolved cross reference from import"));
    EXPECT_THAT(bench.at("Balancer.inputs[0].attribute"),
                HasText(".import:PLC.[Pump 1.1].[vibration.x]"));
    EXPECT_EQ(bench.saved(), readFile(configuration("import.json")));
}

TEST_F(Configurations, TheImportOneResolvesItsReferencesOnRequest) {
    const host::LoadResult result =
        bench.tryLoadFile(configuration("import.json"), {.resolveImportReferences = true});
    EXPECT_THAT(bench.problems(), IsEmpty());
    EXPECT_THAT(bench.at("Balancer.pump"), HasText("PLC.[Pump 1.1]"));
    EXPECT_THAT(bench.at("PLC.Level.event"), HasText("PLC.[Pump 1.1].tripped"));
    EXPECT_THAT(bench.at("Timer.tasks"), HasRows("PLC.[Pump 1.1].start", "Balancer.rebalance"));
    EXPECT_THAT(bench.saved(), Not(HasSubstr(".import:")));
}

} // namespace
