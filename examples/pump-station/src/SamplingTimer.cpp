#include "SamplingTimer.hpp"

#include "durations.hpp"
#include "editors.hpp"
#include "rules.hpp"
#include <corvane/utils/json/decoder/AllowLegacyMicrosecondsTag.hpp>
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/config/Context.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>
#include <corvane/workbench/process/Event.hpp>

#include <memory>

namespace pump_station {

namespace config = corvane::workbench::config;
namespace core = corvane::utils::core;
namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;

using corvane::workbench::bindings::PropertyKey;
using corvane::workbench::chrono::Duration;
using corvane::workbench::process::Event;

namespace {

const PropertyKey kInterval;

const Event kElapsed("elapsed", {});

} // namespace

SamplingTimer::SamplingTimer()
    : tasks_([](std::size_t) { return std::make_unique<TriggeredTask>(); }) {}

SamplingTimer::SamplingTimer(const SamplingTimer& other)
    : Element(other), interval_(other.interval_),
      tasks_([](std::size_t) { return std::make_unique<TriggeredTask>(); }) {
    for (std::size_t index = 0; index < other.tasks_.size(); ++index) {
        tasks_.append(std::make_unique<TriggeredTask>(other.tasks_[index]));
    }
}

void SamplingTimer::configureProperties(PropertyConfigurationContext& context) {
    context.configure(kInterval, {.state = [this] {
                          return require(seconds(interval_) >= 0.001,
                                         "The interval must not be shorter than 1ms.");
                      }});
    tasks_.link();
    context.configure(TriggeredTask::kListProperty,
                      {.state =
                           [this] {
                               return require(tasks_.size() > 0,
                                              "Add a task that the timer is to trigger.");
                           },
                       .stateDependencies = {TriggeredTask::kListProperty}},
                      {.subPropertyContainer = &tasks_});
}

void SamplingTimer::forEachEditableProperty(
    core::function_ref<void(const EditableProperty&)> callback) {
    callback(durationEditor({"interval", "Interval", propertyHandle(kInterval)}, interval_));
    callback(listEditor({"tasks", "Tasks", propertyHandle(TriggeredTask::kListProperty)}, tasks_));
}

void SamplingTimer::load(decoder::Object& object, config::Context& context) {
    for (const auto& [name, value] : object) {
        if (name == "interval") {
            // Early versions wrote a plain count of microseconds.
            interval_ = Duration::load(value, decoder::kAllowLegacyMicroseconds);
        } else if (name == "tasks") {
            for (decoder::Value& row : value.asArray()) {
                auto task = std::make_unique<TriggeredTask>();
                task->load(row, context);
                tasks_.append(std::move(task));
            }
        } else {
            config::throwUnknownParameterError(name);
        }
    }
}

void SamplingTimer::save(encoder::Object& object) const {
    interval_.saveTo(object, "interval");
    encoder::Array rows = object.addMember("tasks").writeArray();
    for (std::size_t index = 0; index < tasks_.size(); ++index) {
        tasks_[index].saveTo(rows);
    }
}

void SamplingTimer::makeDefault() {
    interval_ = Duration(1, Duration::Units::Seconds);
}

bool SamplingTimer::forEachEvent(const core::function_ref<bool(const Event&)>& callback) const {
    return callback(kElapsed);
}

} // namespace pump_station
