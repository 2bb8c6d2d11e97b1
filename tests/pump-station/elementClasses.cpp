#include "PumpStationTest.hpp"
#include <corvane/utils/core/Uuid.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/ElementClassRegistry.hpp>
#include <corvane/workbench/host/LoadedSkill.hpp>
#include <corvane/workbench/skill/AbstractElementFactory.hpp>

#include <set>

namespace {

using namespace pump_station::tests;
namespace skill = corvane::workbench::skill;

class ElementClasses : public PumpStationTest {
protected:
    /// The ids of the classes that an element of that class accepts as children.
    [[nodiscard]] std::vector<std::string> children(std::string_view id) const {
        std::vector<std::string> accepted;
        for (const skill::Element::Class& candidate : bench.workbench().elementClasses().all()) {
            if (bench.workbench().elementClasses().find(id)->allowChildElement(candidate)) {
                accepted.emplace_back(candidate.id());
            }
        }
        return accepted;
    }
};

TEST_F(ElementClasses, BelongToOneSkill) {
    ASSERT_EQ(bench.workbench().skills().size(), 1U);
    const auto& skillClass = bench.workbench().skills()[0]->skillClass();
    EXPECT_EQ(skillClass.id(), "PumpStation");
    EXPECT_EQ(skillClass.displayName(), L"Pump station");
    EXPECT_EQ(skillClass.version(), "1.0.0");
}

TEST_F(ElementClasses, AreRegisteredInTheOrderOfTheCatalogue) {
    std::vector<std::string> texts;
    for (const skill::Element::Class& elementClass : bench.workbench().elementClasses().all()) {
        texts.push_back(std::string(elementClass.id()) + ": " +
                        corvane::utils::string::toUtf8(elementClass.displayName()) + ", " +
                        elementClass.defaultName());
    }
    EXPECT_THAT(texts,
                ElementsAre("PumpStation.Area: Area, Area",
                            "PumpStation.Controller: Pump controller, Controller",
                            "PumpStation.Pump: Pump, Pump", "PumpStation.Valve: Valve, Valve",
                            "PumpStation.MeasurementGroup: Measurement group, Measurements",
                            "PumpStation.Measurement: Measurement, Measurement",
                            "PumpStation.Setpoint: Set point, Set point",
                            "PumpStation.SamplingTimer: Timer, Timer",
                            "PumpStation.PumpBalancer: Pump balancer, Balancer"));
}

TEST_F(ElementClasses, HaveUuidsAndDescriptionsOfTheirOwn) {
    std::set<std::string> uuids;
    std::set<std::wstring> descriptions;
    for (const skill::Element::Class& elementClass : bench.workbench().elementClasses().all()) {
        uuids.insert(elementClass.uuid().toString());
        descriptions.insert(elementClass.description());
    }
    EXPECT_EQ(uuids.size(), 9U);
    EXPECT_EQ(descriptions.size(), 9U);
}

TEST_F(ElementClasses, AcceptChildrenByCategory) {
    EXPECT_THAT(children("PumpStation.Area"),
                ElementsAre("PumpStation.Area", "PumpStation.Controller",
                            "PumpStation.SamplingTimer", "PumpStation.PumpBalancer"));
    EXPECT_THAT(children("PumpStation.Controller"),
                ElementsAre("PumpStation.Pump", "PumpStation.Valve", "PumpStation.MeasurementGroup",
                            "PumpStation.Measurement", "PumpStation.Setpoint"));
    EXPECT_THAT(children("PumpStation.Pump"),
                ElementsAre("PumpStation.Measurement", "PumpStation.Setpoint"));
    EXPECT_THAT(children("PumpStation.Valve"),
                ElementsAre("PumpStation.Measurement", "PumpStation.Setpoint"));
    EXPECT_THAT(children("PumpStation.MeasurementGroup"),
                ElementsAre("PumpStation.MeasurementGroup", "PumpStation.Measurement",
                            "PumpStation.Setpoint"));
    EXPECT_THAT(children("PumpStation.Measurement"), IsEmpty());
    EXPECT_THAT(children("PumpStation.Setpoint"), IsEmpty());
    EXPECT_THAT(children("PumpStation.SamplingTimer"), IsEmpty());
    EXPECT_THAT(children("PumpStation.PumpBalancer"), IsEmpty());
}

TEST_F(ElementClasses, MakeElementsThatAreSavedAndLoadedAlike) {
    bench.add("PumpStation.Area");
    bench.add("PumpStation.SamplingTimer");
    bench.add("PumpStation.PumpBalancer");
    const BenchElement controller = bench.add("PumpStation.Controller");
    for (const char* id : {"PumpStation.Pump", "PumpStation.Valve", "PumpStation.MeasurementGroup",
                           "PumpStation.Measurement", "PumpStation.Setpoint"}) {
        controller.add(id);
    }
    const std::string written = bench.saved();
    bench.load(written);
    EXPECT_EQ(bench.saved(), written);
    EXPECT_EQ(bench.workbench().elementCount(), 9U);
}

TEST_F(ElementClasses, CopyTheSettingsOfEveryElementOfThePlant) {
    bench.loadFile(configuration("plant.json"));
    std::size_t count = 0;
    const auto copyBelow = [&](const auto& self,
                               const corvane::workbench::host::ElementNode& top) -> void {
        for (std::size_t index = 0; index < top.childCount(); ++index) {
            const auto& node = top.child(index);
            const auto copy = node.elementClass().factory().copyElement(*node.skillElement());
            EXPECT_EQ(savedSettings(*copy), savedSettings(*node.skillElement()));
            ++count;
            self(self, node);
        }
    };
    copyBelow(copyBelow, bench.workbench().root());
    EXPECT_EQ(count, 78U);
}

TEST_F(ElementClasses, DoNotCopyElementsOfOthers) {
    const BenchElement area = bench.add("PumpStation.Area");
    EXPECT_THROW(static_cast<void>(bench.workbench()
                                       .elementClasses()
                                       .find("PumpStation.Pump")
                                       ->factory()
                                       .copyElement(*area.node().skillElement())),
                 std::bad_cast);
}

} // namespace
