#pragma once

// Finds a property the way a generic user interface does: it knows nothing of the element's C++
// class and asks the element what there is to edit.

#include <corvane/workbench/skill/EditableProperty.hpp>

#include <string_view>

namespace corvane::workbench::host {
class ElementNode;
}

namespace pump_station::demo {

/// The property of that name, or of a list's row: "alarmLimits.0.threshold", rows counted from 0.
/// Throws std::runtime_error, with a sentence for the user, when there is none.
[[nodiscard]] corvane::workbench::skill::EditableProperty
findProperty(const corvane::workbench::host::ElementNode& element, std::string_view path);

} // namespace pump_station::demo
