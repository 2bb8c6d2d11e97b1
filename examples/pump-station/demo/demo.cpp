// Shows the library at work on a real configuration: the skill of this folder is opened as the
// workbench opens it, its elements are loaded, edited, observed and saved. Nothing here knows the
// skill's C++ classes.

#include "ElementWatch.hpp"
#include "ReferenceWatch.hpp"
#include "columns.hpp"
#include "console.hpp"
#include "findProperty.hpp"
#include "printTree.hpp"
#include <corvane/utils/core/Uuid.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/Workbench.hpp>

#include <exception>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

namespace demo = pump_station::demo;
namespace host = corvane::workbench::host;
namespace skill = corvane::workbench::skill;

using corvane::utils::string::toUtf8;
using corvane::utils::string::toWide;

constexpr std::string_view kTurbidity = "Station.Intake.Intake PLC.Water quality.Turbidity";
constexpr std::string_view kPlc = "Station.Pump hall.PLC 1";
constexpr std::string_view kPump = "Station.Pump hall.PLC 1.[Pump 1.2]";
constexpr std::string_view kBalancer = "Station.Pump hall.Balancer 1";
constexpr std::string_view kTank = "Station.Reservoir.Reservoir PLC.Tank";
constexpr std::string_view kLevel = "Station.Reservoir.Reservoir PLC.Tank.[Level 3.1]";
constexpr std::string_view kOpening = "Station.Reservoir.Reservoir PLC.[Valve 3.1].Opening";

void heading(std::string_view text) {
    std::cout << '\n' << text << "\n\n";
}

void require(const host::Result<void>& result) {
    if (!result) {
        throw std::runtime_error(toString(result.error()));
    }
}

void load(host::Workbench& workbench, const std::filesystem::path& file) {
    const host::LoadResult result = workbench.loadConfiguration(file);
    for (const host::Problem& problem : result.problems) {
        std::cout << "  " << toString(problem) << '\n';
    }
    if (!result) {
        throw std::runtime_error("the configuration was not loaded");
    }
}

host::ElementNode& element(const host::Workbench& workbench, std::string_view key) {
    host::ElementNode* node = workbench.findElement(key);
    if (node == nullptr) {
        throw std::runtime_error("the configuration has no element “" + std::string(key) + "”");
    }
    return *node;
}

void set(const host::ElementNode& node, std::string_view path, std::string_view text) {
    const skill::EditableProperty property = demo::findProperty(node, path);
    std::cout << "  " << node.name() << ": " << path << " = “" << text << "”\n";
    if (const auto result = property.setText(toWide(text)); !result) {
        throw std::runtime_error(toUtf8(result.error()));
    }
}

void insertRow(const host::ElementNode& node, std::string_view path, std::size_t index) {
    const skill::EditableProperty property = demo::findProperty(node, path);
    std::cout << "  " << node.name() << ": a row is inserted in " << path << " at " << index
              << '\n';
    if (const auto result = property.insertSubElement(index); !result) {
        throw std::runtime_error(toUtf8(result.error()));
    }
}

std::string everything(const host::Workbench& workbench) {
    std::ostringstream text;
    demo::printEverything(workbench.root(), text);
    return std::move(text).str();
}

void showPlant(const host::Workbench& workbench) {
    heading("The plant");
    demo::printTree(workbench.root(), std::cout);
    std::cout << "\n  " << workbench.elementCount() << " elements, "
              << demo::errorCountText(workbench.root().properties().propertyErrorCount()) << '\n';
    heading("One of its elements: " + std::string(kTurbidity));
    demo::printProperties(element(workbench, kTurbidity), std::cout);
}

void playEdits(const host::Workbench& workbench) {
    host::ElementNode& turbidity = element(workbench, kTurbidity);
    {
        const demo::ElementWatch watch(turbidity, std::cout);
        heading("A value becomes invalid, and valid again");
        set(turbidity, "channel", "600");
        set(turbidity, "channel", "23");
        heading("A limit changes");
        set(turbidity, "alarmLimits.0.threshold", "500");
        set(turbidity, "alarmLimits.0.threshold", "150");
        heading("A limit is added: its threshold is proposed, the rest is to be filled in");
        insertRow(turbidity, "alarmLimits", 1);
        set(turbidity, "alarmLimits.1.kind", "high-high");
        set(turbidity, "alarmLimits.1.message", "Intake closes");
    }
    host::ElementNode& plc = element(workbench, kPlc);
    const demo::ElementWatch watch(plc, std::cout);
    heading("A property becomes invisible, and what is wrong with it does not matter any more");
    set(plc, "certificate", "");
    set(plc, "security", "none");
}

void saveAndLoadAgain(const host::Workbench& workbench, const std::filesystem::path& library) {
    heading("Saved and loaded again");
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() /
        ("pump-station-" + corvane::utils::core::Uuid::generate().toString() + ".json");
    require(workbench.saveConfiguration(file));
    host::Workbench second;
    require(second.loadSkills(library));
    load(second, file);
    std::filesystem::remove(file);
    const bool same = everything(second) == everything(workbench);
    std::cout << "  " << second.elementCount() << " elements, "
              << (same ? "the same tree with the same properties"
                       : "but not the same tree or not the same properties")
              << '\n';
}

void playReferences(host::Workbench& workbench) {
    const demo::ReferenceWatch references(workbench, std::cout);
    {
        const demo::ElementWatch watch(element(workbench, kBalancer), std::cout);
        heading("A pump gets another name, and the balancer that watches its vibration follows");
        require(workbench.rename(kPump, "[Pump 1.4]"));
    }
    const demo::ElementWatch watch(element(workbench, kOpening), std::cout);
    heading("A measurement is removed that a set point follows");
    require(workbench.remove(kLevel));
    heading("A new one takes its place");
    const auto added = workbench.add(kTank, "PumpStation.Measurement", "[Level 3.1]");
    if (!added) {
        throw std::runtime_error(toString(added.error()));
    }
}

void play(const std::filesystem::path& library, const std::filesystem::path& configuration) {
    host::Workbench workbench;
    require(workbench.loadSkills(library));
    const host::LoadedSkill& skill = *workbench.skills().front();
    std::cout << toUtf8(skill.skillClass().displayName()) << ' ' << skill.skillClass().version()
              << ", a skill with " << skill.elementClasses().size() << " element classes\n";
    load(workbench, configuration);
    showPlant(workbench);
    playEdits(workbench);
    saveAndLoadAgain(workbench, library);
    playReferences(workbench);
}

} // namespace

int main(int argc, char** argv) {
    demo::prepareConsole();
    try {
        const std::filesystem::path folder = std::filesystem::path(argv[0]).parent_path();
        play(folder / PUMP_STATION_LIBRARY, argc > 1 ? argv[1] : PUMP_STATION_CONFIGURATION);
        return 0;
    } catch (const std::exception& exception) {
        std::cout << std::flush;
        std::cerr << "pump-station-demo: " << exception.what() << '\n';
        return 1;
    }
}
