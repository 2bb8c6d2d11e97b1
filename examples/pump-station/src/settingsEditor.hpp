#pragma once

// The editor of free-form settings: one line of JSON.

#include "Label.hpp"
#include <corvane/workbench/skill/EditableProperty.hpp>

namespace corvane::workbench::json {
class Object;
}

namespace pump_station {

/// Shows the settings as JSON and takes back what is a JSON object without reserved member names;
/// an empty text stands for no settings.
[[nodiscard]] corvane::workbench::skill::EditableProperty
settingsEditor(const Label& label, corvane::workbench::json::Object& settings);

} // namespace pump_station
