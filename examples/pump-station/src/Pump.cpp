#include "Pump.hpp"

#include "dataTypes.hpp"
#include "editors.hpp"
#include "members.hpp"
#include "rules.hpp"
#include "text.hpp"
#include "visitUntil.hpp"
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/process/Event.hpp>
#include <corvane/workbench/process/Task.hpp>

#include <array>
#include <cmath>

namespace pump_station {

namespace config = corvane::workbench::config;
namespace core = corvane::utils::core;
namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;

using corvane::workbench::bindings::PropertyKey;
using corvane::workbench::io::Direction;
using corvane::workbench::model::Attribute;
using corvane::workbench::process::Event;
using corvane::workbench::process::Task;

namespace {

const PropertyKey kDrive;
const PropertyKey kRatedPower;
const PropertyKey kRatedFlow;
const PropertyKey kSpecificEnergy;
const PropertyKey kMinimumSpeed;
const PropertyKey kMaximumSpeed;

constexpr std::array<std::string_view, 2> kDriveTexts{"fixed speed", "variable speed"};

// A name with a dot is written in brackets, which keep it one component of a key.
const std::array<Attribute, 4> kAttributes{
    Attribute::kDeviceState,
    Attribute("power", Attribute::Access::ReadOnly, kDouble, Direction::Read),
    Attribute("[vibration.x]", Attribute::Access::ReadOnly, kDouble, Direction::Read),
    Attribute("[vibration.y]", Attribute::Access::ReadOnly, kDouble, Direction::Read)};
const Attribute kSpeed("speed", Attribute::Access::ReadWrite, kDouble,
                       {Direction::Read, Direction::Write});
const std::array<Event, 3> kEvents{Event("started", Direction::Read),
                                   Event("stopped", Direction::Read),
                                   Event("tripped", Direction::Read)};
const std::array<Task, 2> kTasks{Task("start"), Task("stop")};

} // namespace

void Pump::configureProperties(PropertyConfigurationContext& context) {
    const auto variableSpeed = [this] { return drive_ == Drive::VariableSpeed; };

    context.configure(kRatedPower, {.state = [this] {
                          return require(ratedPower_ > 0,
                                         "The rated power must be greater than 0 kW.");
                      }});
    context.configure(kRatedFlow, {.state = [this] {
                          return require(ratedFlow_ > 0,
                                         "The rated flow must be greater than 0 m³/h.");
                      }});
    context.configure(kSpecificEnergy, {.valueDependencies = {kRatedPower, kRatedFlow}});
    context.configure(kMinimumSpeed,
                      {.state =
                           [this] {
                               return require(minimumSpeed_ >= 0,
                                              "The minimum speed must not be negative.");
                           },
                       .visibility = variableSpeed,
                       .visibilityDependencies = {kDrive}});
    context.configure(kMaximumSpeed,
                      {.state =
                           [this] {
                               return require(
                                   maximumSpeed_ > minimumSpeed_,
                                   "The maximum speed must lie above the minimum speed.");
                           },
                       .stateDependencies = {kMinimumSpeed},
                       .visibility = variableSpeed,
                       .visibilityDependencies = {kDrive}});
}

void Pump::forEachEditableProperty(core::function_ref<void(const EditableProperty&)> callback) {
    // A variable drive has one attribute more.
    callback(
        afterChange(choiceEditor({"drive", "Drive", propertyHandle(kDrive)}, kDriveTexts, drive_),
                    [this] { publishElementMembers(); }));
    callback(
        numberEditor({"ratedPower", "Rated power (kW)", propertyHandle(kRatedPower)}, ratedPower_));
    callback(
        numberEditor({"ratedFlow", "Rated flow (m³/h)", propertyHandle(kRatedFlow)}, ratedFlow_));
    callback(
        readOnly({"specificEnergy", "Specific energy (kWh/m³)", propertyHandle(kSpecificEnergy)},
                 [this] { return specificEnergyText(); }));
    callback(numberEditor({"minimumSpeed", "Minimum speed (1/min)", propertyHandle(kMinimumSpeed)},
                          minimumSpeed_));
    callback(numberEditor({"maximumSpeed", "Maximum speed (1/min)", propertyHandle(kMaximumSpeed)},
                          maximumSpeed_));
}

void Pump::load(decoder::Object& object, config::Context& /*context*/) {
    for (const auto& [name, value] : object) {
        if (name == "drive") {
            readChoice(value, kDriveTexts, drive_);
        } else if (name == "ratedPower") {
            ratedPower_ = readNumber(value);
        } else if (name == "ratedFlow") {
            ratedFlow_ = readNumber(value);
        } else if (name == "minimumSpeed") {
            minimumSpeed_ = readNumber(value);
        } else if (name == "maximumSpeed") {
            maximumSpeed_ = readNumber(value);
        } else {
            config::throwUnknownParameterError(name);
        }
    }
}

void Pump::save(encoder::Object& object) const {
    writeChoice(object, "drive", kDriveTexts, drive_);
    writeNumber(object, "ratedPower", ratedPower_);
    writeNumber(object, "ratedFlow", ratedFlow_);
    if (drive_ == Drive::VariableSpeed) {
        writeNumber(object, "minimumSpeed", minimumSpeed_);
        writeNumber(object, "maximumSpeed", maximumSpeed_);
    }
}

void Pump::makeDefault() {
    ratedPower_ = 7.5;
    ratedFlow_ = 50;
    minimumSpeed_ = 600;
    maximumSpeed_ = 1450;
}

bool Pump::forEachAttribute(const core::function_ref<bool(const Attribute&)>& callback) const {
    return visitUntil(kAttributes, callback) ||
           (drive_ == Drive::VariableSpeed && callback(kSpeed));
}

bool Pump::forEachEvent(const core::function_ref<bool(const Event&)>& callback) const {
    return visitUntil(kEvents, callback);
}

bool Pump::forEachTask(const core::function_ref<bool(const Task&)>& callback) const {
    return visitUntil(kTasks, callback);
}

std::wstring Pump::specificEnergyText() const {
    if (ratedFlow_ <= 0) {
        return text("unknown");
    }
    return numberText(std::round(ratedPower_ / ratedFlow_ * 1000) / 1000);
}

} // namespace pump_station
