#pragma once

// Walks through the properties of an element, those of the rows of its lists included, and finds
// one by its path: the names on the way to it, joined by ".", where a row is named by its number
// counted from 0 ("alarmLimits.0.high").

#include <corvane/utils/core/function_ref.hpp>
#include <corvane/workbench/bindings/PropertyController.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace corvane::workbench::host {
class ElementNode;
class Workbench;
} // namespace corvane::workbench::host
namespace corvane::workbench::skill {
struct EditableProperty;
class SubElement;
} // namespace corvane::workbench::skill

namespace corvane::skillbench {

/// A property that a user may see, as its element describes it.
struct PropertyPlace {
    const workbench::host::ElementNode& element;
    const workbench::skill::EditableProperty& property;
    const std::string& path;
    /// The row that holds the property; null when the element itself does.
    workbench::skill::SubElement* row;
};

/// Calls back for each property in the order of the form, a list before its rows. The place is
/// valid during the call.
void forEachProperty(const workbench::host::ElementNode& element,
                     utils::core::function_ref<void(const PropertyPlace&)> callback);

/// The key of an element and, joined to it, the path of one of its properties.
struct PropertyAddress {
    workbench::host::ElementNode* element;
    std::string path;
};

/// What an address such as "Plant.Pump 1.alarmLimits.0.high" names: of the beginnings that are keys
/// of elements the longest whose element has the property. Nothing if there is none.
[[nodiscard]] std::optional<PropertyAddress>
findProperty(const workbench::host::Workbench& workbench, std::string_view address);

/// Why there is none, in a sentence for the user.
[[nodiscard]] std::string propertyNotFound(const workbench::host::Workbench& workbench,
                                           std::string_view address);

/// Calls back with the property of that path.
void withProperty(const PropertyAddress& address,
                  utils::core::function_ref<void(const PropertyPlace&)> callback);

// What a property is, asked so that a skill that fails is named.

[[nodiscard]] bool isVisible(const PropertyPlace& place);
[[nodiscard]] const workbench::bindings::PropertyController::PropertyState&
stateOf(const PropertyPlace& place);
/// The text of the value as the user sees it; may have several lines.
[[nodiscard]] std::wstring valueOf(const PropertyPlace& place);
/// The same on one line.
[[nodiscard]] std::string valueText(const PropertyPlace& place);

} // namespace corvane::skillbench
