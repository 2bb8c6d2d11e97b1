#include "AlarmLimit.hpp"

#include "durations.hpp"
#include "editors.hpp"
#include "members.hpp"
#include "rules.hpp"
#include "text.hpp"
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>

#include <array>

namespace pump_station {

namespace config = corvane::workbench::config;
namespace core = corvane::utils::core;
namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;

using corvane::workbench::bindings::PropertyKey;
using corvane::workbench::chrono::Duration;

namespace {

const PropertyKey kKind;
const PropertyKey kThreshold;
const PropertyKey kDelay;
const PropertyKey kMessage;

constexpr std::array<std::string_view, 4> kKindTexts{"low-low", "low", "high", "high-high"};

} // namespace

const PropertyKey AlarmLimit::kListProperty;

AlarmLimit::AlarmLimit(const MeasuringRange& range, Kind kind, double threshold)
    : range_(range), kind_(kind), threshold_(threshold) {}

AlarmLimit::AlarmLimit(const AlarmLimit& other, const MeasuringRange& range)
    : SubElement(other), range_(range), kind_(other.kind_), threshold_(other.threshold_),
      delay_(other.delay_), message_(other.message_) {}

void AlarmLimit::configureProperties(PropertyConfigurationContext& context) {
    context.configure(kKind, {.raisedProperties = {kListProperty}});
    context.configure(kThreshold,
                      {.state = [this]() -> State {
                           if (range_.contains(threshold_)) {
                               return {};
                           }
                           return tl::unexpected(
                               text("The threshold must lie within the measuring range, {} to {}.",
                                    numberText(range_.low), numberText(range_.high)));
                       },
                       .raisedProperties = {kListProperty}});
    context.configure(
        kDelay,
        {.state =
             [this] { return require(seconds(delay_) >= 0, "The delay must not be negative."); },
         .raisedProperties = {kListProperty}});
    context.configure(kMessage,
                      {.state =
                           [this] {
                               return require(!message_.empty(),
                                              "Enter the message that the operator reads.");
                           },
                       .raisedProperties = {kListProperty}});
    context.configure(displayNamePropertyId(), {.valueDependencies = {kKind, kThreshold}});
}

std::wstring AlarmLimit::displayName() const {
    return text("{} at {}", kindText(kind_), numberText(threshold_));
}

void AlarmLimit::forEachEditableProperty(
    core::function_ref<void(const EditableProperty&)> callback) {
    callback(choiceEditor({"kind", "Kind", propertyHandle(kKind)}, kKindTexts, kind_));
    callback(numberEditor({"threshold", "Threshold", propertyHandle(kThreshold)}, threshold_));
    callback(durationEditor({"delay", "Delay", propertyHandle(kDelay)}, delay_));
    callback(textEditor({"message", "Message", propertyHandle(kMessage)}, message_));
}

void AlarmLimit::load(decoder::Value& value) {
    for (const auto& [name, member] : value.asObject()) {
        if (name == "kind") {
            readChoice(member, kKindTexts, kind_);
        } else if (name == "threshold") {
            threshold_ = readNumber(member);
        } else if (name == "delay") {
            delay_ = Duration::load(member);
        } else if (name == "message") {
            message_ = readText(member);
        } else {
            config::throwUnknownParameterError(name);
        }
    }
}

void AlarmLimit::saveTo(encoder::Array& array) const {
    encoder::Object object = array.addElement().writeObject();
    writeChoice(object, "kind", kKindTexts, kind_);
    writeNumber(object, "threshold", threshold_);
    delay_.saveTo(object, "delay");
    writeText(object, "message", message_);
}

void AlarmLimit::publishThresholdState() const {
    publishState(kThreshold);
}

std::wstring kindText(AlarmLimit::Kind kind) {
    return text(kKindTexts[static_cast<std::size_t>(kind)]);
}

} // namespace pump_station
