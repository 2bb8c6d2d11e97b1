#include "TriggeredTask.hpp"

#include "editors.hpp"
#include "rules.hpp"
#include "text.hpp"
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/config/Context.hpp>

namespace pump_station {

namespace config = corvane::workbench::config;
namespace core = corvane::utils::core;
namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;

using corvane::workbench::bindings::PropertyKey;

const PropertyKey TriggeredTask::kListProperty;

void TriggeredTask::configureProperties(PropertyConfigurationContext& context) {
    context.configure(
        task_.propertyId(),
        {.state = [this] { return resolves(task_.task()); }, .raisedProperties = {kListProperty}},
        {.crossReferenceController = &task_});
    context.configure(displayNamePropertyId(), {.valueDependencies = {task_.propertyId()}});
}

std::wstring TriggeredTask::displayName() const {
    return task_ ? corvane::utils::string::toWide(task_.primaryKey()) : text("no task");
}

void TriggeredTask::forEachEditableProperty(
    core::function_ref<void(const EditableProperty&)> callback) {
    callback(referenceEditor({"task", "Task", propertyHandle(task_.propertyId())}, task_));
}

void TriggeredTask::load(decoder::Value& value, config::Context& context) {
    context.resolve(config::Context::ReferenceKey(value), task_);
}

void TriggeredTask::saveTo(encoder::Array& array) const {
    task_.saveTo(array);
}

} // namespace pump_station
