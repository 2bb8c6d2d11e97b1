#include "Group.hpp"

#include "editors.hpp"
#include "members.hpp"
#include "text.hpp"
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>

namespace pump_station {

namespace config = corvane::workbench::config;
namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;

namespace {

// Each property is named by the address of a static object.
const corvane::workbench::bindings::PropertyKey kDescription;

} // namespace

void Group::forEachEditableProperty(
    corvane::utils::core::function_ref<void(const EditableProperty&)> callback) {
    callback(
        textEditor({"description", "Description", propertyHandle(kDescription)}, description_));
}

void Group::load(decoder::Object& object, config::Context& /*context*/) {
    for (const auto& [name, value] : object) {
        if (name == "description") {
            description_ = readText(value);
        } else {
            config::throwUnknownParameterError(name);
        }
    }
}

void Group::save(encoder::Object& object) const {
    writeText(object, "description", description_);
}

void Group::makeDefault() {
    description_ = corvane::utils::string::toUtf8(text("Describe what belongs here."));
}

} // namespace pump_station
