#include "Setpoint.hpp"

#include "dataTypes.hpp"
#include "editors.hpp"
#include "members.hpp"
#include "rules.hpp"
#include "text.hpp"
#include "visitUntil.hpp"
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/config/Context.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/process/Event.hpp>

#include <array>

namespace pump_station {

namespace config = corvane::workbench::config;
namespace core = corvane::utils::core;
namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;

using corvane::workbench::bindings::PropertyKey;
using corvane::workbench::io::Direction;
using corvane::workbench::model::Attribute;
using corvane::workbench::process::Event;

namespace {

const PropertyKey kUnit;
const PropertyKey kRangeLow;
const PropertyKey kRangeHigh;
const PropertyKey kValue;
const PropertyKey kMode;

constexpr std::array<std::string_view, 2> kModeTexts{"fixed", "follow"};

const std::array<Attribute, 2> kAttributes{
    Attribute("value", Attribute::Access::ReadWrite, kDouble, {Direction::Read, Direction::Write}),
    Attribute::kWriteTime};

} // namespace

// The value of an attribute may change without an event of its own.
Setpoint::Setpoint() : event_({.includeAttributes = true}) {}

void Setpoint::configureProperties(PropertyConfigurationContext& context) {
    const auto follows = [this] { return mode_ == Mode::Follow; };

    context.configure(kUnit, {.state = [this] {
                          return require(!unit_.empty(), "Enter the unit of the wanted value.");
                      }});
    context.configure(kRangeHigh, {.state =
                                       [this] {
                                           return require(range_.high > range_.low,
                                                          "The highest value must lie above the "
                                                          "lowest.");
                                       },
                                   .stateDependencies = {kRangeLow}});
    context.configure(kValue, {.state = [this]() -> State {
                                   if (range_.contains(value_)) {
                                       return {};
                                   }
                                   return tl::unexpected(
                                       text("The value must lie between {} and {}.",
                                            numberText(range_.low), numberText(range_.high)));
                               },
                               .stateDependencies = {kRangeLow, kRangeHigh},
                               .visibility = [this] { return mode_ == Mode::Fixed; },
                               .visibilityDependencies = {kMode}});
    context.configure(event_.propertyId(),
                      {.state = [this] { return resolves(event_.event()); },
                       .visibility = follows,
                       .visibilityDependencies = {kMode}},
                      {.crossReferenceController = &event_});
}

void Setpoint::forEachEditableProperty(core::function_ref<void(const EditableProperty&)> callback) {
    callback(textEditor({"unit", "Unit", propertyHandle(kUnit)}, unit_));
    callback(numberEditor({"rangeLow", "Lowest value", propertyHandle(kRangeLow)}, range_.low));
    callback(numberEditor({"rangeHigh", "Highest value", propertyHandle(kRangeHigh)}, range_.high));
    callback(choiceEditor({"mode", "Mode", propertyHandle(kMode)}, kModeTexts, mode_));
    callback(numberEditor({"value", "Value", propertyHandle(kValue)}, value_));
    callback(
        referenceEditor({"event", "Event to follow", propertyHandle(event_.propertyId())}, event_));
}

void Setpoint::load(decoder::Object& object, config::Context& context) {
    for (const auto& [name, value] : object) {
        if (name == "unit") {
            unit_ = readText(value);
        } else if (name == "rangeLow") {
            range_.low = readNumber(value);
        } else if (name == "rangeHigh") {
            range_.high = readNumber(value);
        } else if (name == "mode") {
            readChoice(value, kModeTexts, mode_);
        } else if (name == "value") {
            value_ = readNumber(value);
        } else if (name == "event") {
            context.resolve(config::Context::ReferenceKey(value), event_);
        } else {
            config::throwUnknownParameterError(name);
        }
    }
}

void Setpoint::save(encoder::Object& object) const {
    writeText(object, "unit", unit_);
    writeNumber(object, "rangeLow", range_.low);
    writeNumber(object, "rangeHigh", range_.high);
    writeChoice(object, "mode", kModeTexts, mode_);
    writeNumber(object, "value", value_);
    if (event_) {
        event_.saveTo(object, "event");
    }
}

void Setpoint::makeDefault() {
    unit_ = "m";
    range_ = {.low = 0, .high = 10};
}

bool Setpoint::forEachAttribute(const core::function_ref<bool(const Attribute&)>& callback) const {
    return visitUntil(kAttributes, callback);
}

bool Setpoint::forEachEvent(const core::function_ref<bool(const Event&)>& callback) const {
    return callback(Event::kChanged);
}

} // namespace pump_station
