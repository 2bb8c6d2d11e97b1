#include "Measurement.hpp"

#include "dataTypes.hpp"
#include "editors.hpp"
#include "members.hpp"
#include "text.hpp"
#include "visitUntil.hpp"
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/bindings/functional.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/process/Event.hpp>

#include <algorithm>
#include <array>
#include <vector>

namespace pump_station {

namespace config = corvane::workbench::config;
namespace core = corvane::utils::core;
namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;

using corvane::workbench::bindings::PropertyKey;
using corvane::workbench::bindings::functional::Offset;
using corvane::workbench::io::Direction;
using corvane::workbench::model::Attribute;
using corvane::workbench::process::Event;

namespace {

const PropertyKey kUnit;
const PropertyKey kChannel;
const PropertyKey kRangeLow;
const PropertyKey kRangeHigh;

constexpr std::int64_t kLastChannel = 512;

const std::array<Attribute, 3> kAttributes{
    Attribute("value", Attribute::Access::ReadOnly, kDouble, Direction::Read), Attribute::kQuality,
    Attribute::kSourceTime};
const std::array<Event, 2> kEvents{Event::kChanged, Event("limitExceeded", Direction::Read)};

} // namespace

Measurement::Measurement()
    : alarmLimits_([this](std::size_t index) { return proposedLimit(index); }) {}

Measurement::Measurement(const Measurement& other)
    : Element(other), unit_(other.unit_), channel_(other.channel_), range_(other.range_),
      alarmLimits_([this](std::size_t index) { return proposedLimit(index); }) {
    for (std::size_t index = 0; index < other.alarmLimits_.size(); ++index) {
        alarmLimits_.append(std::make_unique<AlarmLimit>(other.alarmLimits_[index], range_));
    }
}

void Measurement::configureProperties(PropertyConfigurationContext& context) {
    context.configure(kUnit, {.state = [this] {
                          return require(!unit_.empty(), "Enter the unit of the measured value.");
                      }});
    context.configure(kChannel, {.state = [this] {
                          return require(channel_ >= 1 && channel_ <= kLastChannel,
                                         "The channel must lie between 1 and 512.");
                      }});
    context.configure(kRangeHigh, {.state =
                                       [this] {
                                           return require(range_.high > range_.low,
                                                          "The end of the measuring range must "
                                                          "lie above its start.");
                                       },
                                   .stateDependencies = {kRangeLow}});
    alarmLimits_.link();
    // The rule looks at all rows, so it runs again whenever the list is published, by a row or by
    // an insertion or removal: the list depends on itself.
    context.configure(AlarmLimit::kListProperty,
                      {.state = [this] { return limitsState(); },
                       .stateDependencies = {AlarmLimit::kListProperty}},
                      {.subPropertyContainer = &alarmLimits_});
}

void Measurement::forEachEditableProperty(
    core::function_ref<void(const EditableProperty&)> callback) {
    const auto rangeChanged = [this] { publishThresholdStates(); };

    callback(textEditor({"unit", "Unit", propertyHandle(kUnit)}, unit_));
    callback(integerEditor({"channel", "Channel", propertyHandle(kChannel)}, channel_));
    callback(afterChange(
        numberEditor({"rangeLow", "Range start", propertyHandle(kRangeLow)}, range_.low),
        rangeChanged));
    callback(afterChange(
        numberEditor({"rangeHigh", "Range end", propertyHandle(kRangeHigh)}, range_.high),
        rangeChanged));
    callback(listEditor({"alarmLimits", "Alarm limits", propertyHandle(AlarmLimit::kListProperty)},
                        alarmLimits_));
}

void Measurement::load(decoder::Object& object, config::Context& /*context*/) {
    for (const auto& [name, value] : object) {
        if (name == "unit") {
            unit_ = readText(value);
        } else if (name == "channel") {
            channel_ = readInteger(value);
        } else if (name == "rangeLow") {
            range_.low = readNumber(value);
        } else if (name == "rangeHigh") {
            range_.high = readNumber(value);
        } else if (name == "alarmLimits") {
            for (decoder::Value& row : value.asArray()) {
                auto limit = std::make_unique<AlarmLimit>(range_, AlarmLimit::Kind::High, 0.0);
                limit->load(row);
                alarmLimits_.append(std::move(limit));
            }
        } else {
            config::throwUnknownParameterError(name);
        }
    }
}

void Measurement::save(encoder::Object& object) const {
    writeText(object, "unit", unit_);
    writeInteger(object, "channel", channel_);
    writeNumber(object, "rangeLow", range_.low);
    writeNumber(object, "rangeHigh", range_.high);
    if (alarmLimits_.size() > 0) {
        encoder::Array rows = object.addMember("alarmLimits").writeArray();
        for (std::size_t index = 0; index < alarmLimits_.size(); ++index) {
            alarmLimits_[index].saveTo(rows);
        }
    }
}

void Measurement::makeDefault() {
    unit_ = "m";
    channel_ = 1;
    range_ = {.low = 0, .high = 10};
}

bool Measurement::forEachAttribute(
    const core::function_ref<bool(const Attribute&)>& callback) const {
    return visitUntil(kAttributes, callback);
}

bool Measurement::forEachEvent(const core::function_ref<bool(const Event&)>& callback) const {
    return visitUntil(kEvents, callback);
}

// A new limit continues the list by a tenth of the range.
std::unique_ptr<AlarmLimit> Measurement::proposedLimit(std::size_t index) const {
    std::vector<double> thresholds;
    for (std::size_t row = 0; row < alarmLimits_.size(); ++row) {
        thresholds.push_back(alarmLimits_[row].threshold());
    }
    const Offset<double> next((range_.high - range_.low) / 10);
    return std::make_unique<AlarmLimit>(range_, AlarmLimit::Kind::High, next(thresholds, index));
}

State Measurement::limitsState() const {
    std::vector<const AlarmLimit*> limits;
    for (std::size_t index = 0; index < alarmLimits_.size(); ++index) {
        limits.push_back(&alarmLimits_[index]);
    }
    std::ranges::stable_sort(limits, {}, &AlarmLimit::kind);
    for (std::size_t index = 1; index < limits.size(); ++index) {
        const AlarmLimit& lower = *limits[index - 1];
        const AlarmLimit& upper = *limits[index];
        if (lower.kind() == upper.kind()) {
            return tl::unexpected(
                text("There must be no more than one limit “{}”.", kindText(lower.kind())));
        }
        if (lower.threshold() >= upper.threshold()) {
            return tl::unexpected(text("The limit “{}” must lie above the limit “{}”.",
                                       kindText(upper.kind()), kindText(lower.kind())));
        }
    }
    return {};
}

void Measurement::publishThresholdStates() const {
    for (std::size_t index = 0; index < alarmLimits_.size(); ++index) {
        alarmLimits_[index].publishThresholdState();
    }
}

} // namespace pump_station
