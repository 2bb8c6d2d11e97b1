#include "Valve.hpp"

#include "dataTypes.hpp"
#include "durations.hpp"
#include "editors.hpp"
#include "members.hpp"
#include "rules.hpp"
#include "visitUntil.hpp"
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/process/Event.hpp>
#include <corvane/workbench/process/Task.hpp>

#include <array>

namespace pump_station {

namespace config = corvane::workbench::config;
namespace core = corvane::utils::core;
namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;

using corvane::workbench::bindings::PropertyKey;
using corvane::workbench::chrono::Duration;
using corvane::workbench::io::Direction;
using corvane::workbench::model::Attribute;
using corvane::workbench::process::Event;
using corvane::workbench::process::Task;

namespace {

const PropertyKey kKind;
const PropertyKey kTravelTime;
const PropertyKey kFailPosition;
const PropertyKey kMinimumOpening;

constexpr std::array<std::string_view, 2> kKindTexts{"shut-off", "control"};
constexpr std::array<std::string_view, 3> kFailPositionTexts{"open", "closed", "hold"};

const Attribute kPosition("position", Attribute::Access::ReadOnly, kDouble, Direction::Read);
const std::array<Event, 2> kEvents{Event("opened", Direction::Read),
                                   Event("closed", Direction::Read)};
const std::array<Task, 2> kTasks{Task("open"), Task("close")};

} // namespace

void Valve::configureProperties(PropertyConfigurationContext& context) {
    context.configure(kTravelTime, {.state = [this] {
                          return require(seconds(travelTime_) > 0,
                                         "The travel time must be longer than 0.");
                      }});
    context.configure(kMinimumOpening,
                      {.state =
                           [this] {
                               return require(
                                   minimumOpening_ >= 0 && minimumOpening_ < 100,
                                   "The minimum opening must be at least 0 and less than 100 %.");
                           },
                       .visibility = [this] { return kind_ == Kind::Control; },
                       .visibilityDependencies = {kKind}});
}

void Valve::forEachEditableProperty(core::function_ref<void(const EditableProperty&)> callback) {
    callback(choiceEditor({"kind", "Kind", propertyHandle(kKind)}, kKindTexts, kind_));
    callback(
        durationEditor({"travelTime", "Travel time", propertyHandle(kTravelTime)}, travelTime_));
    callback(choiceEditor({"failPosition", "Position on failure", propertyHandle(kFailPosition)},
                          kFailPositionTexts, failPosition_));
    callback(
        numberEditor({"minimumOpening", "Minimum opening (%)", propertyHandle(kMinimumOpening)},
                     minimumOpening_));
}

void Valve::load(decoder::Object& object, config::Context& /*context*/) {
    for (const auto& [name, value] : object) {
        if (name == "kind") {
            readChoice(value, kKindTexts, kind_);
        } else if (name == "travelTime") {
            travelTime_ = Duration::load(value);
        } else if (name == "failPosition") {
            readChoice(value, kFailPositionTexts, failPosition_);
        } else if (name == "minimumOpening") {
            minimumOpening_ = readNumber(value);
        } else {
            config::throwUnknownParameterError(name);
        }
    }
}

void Valve::save(encoder::Object& object) const {
    writeChoice(object, "kind", kKindTexts, kind_);
    travelTime_.saveTo(object, "travelTime");
    writeChoice(object, "failPosition", kFailPositionTexts, failPosition_);
    if (kind_ == Kind::Control) {
        writeNumber(object, "minimumOpening", minimumOpening_);
    }
}

void Valve::makeDefault() {
    travelTime_ = Duration(30, Duration::Units::Seconds);
}

bool Valve::forEachAttribute(const core::function_ref<bool(const Attribute&)>& callback) const {
    return callback(Attribute::kDeviceState) || callback(kPosition);
}

bool Valve::forEachEvent(const core::function_ref<bool(const Event&)>& callback) const {
    return visitUntil(kEvents, callback);
}

bool Valve::forEachTask(const core::function_ref<bool(const Task&)>& callback) const {
    return visitUntil(kTasks, callback);
}

} // namespace pump_station
