#pragma once

// Walks through the properties of an element, those of the rows of its lists included, and finds
// one by its path: the names on the way to it, joined by ".", where a row is named by its number
// counted from 0 ("alarmLimits.0.high"). Who looks for one may write the number in brackets
// ("alarmLimits[0].high").

#include <corvane/utils/core/function_ref.hpp>
#include <corvane/workbench/bindings/PropertyController.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace corvane::workbench::skill {
struct EditableProperty;
class SubElement;
} // namespace corvane::workbench::skill

namespace corvane::workbench::host {

class ElementNode;
class Workbench;

/// A property that a user may see, as its element describes it.
struct PropertyPlace {
    /// The element whose property it is.
    const ElementNode& element;
    /// What the element says of the property.
    const skill::EditableProperty& property;
    /// The path of the property in its element.
    const std::string& path;
    /// The row that holds the property; null when the element itself does.
    skill::SubElement* row;
};

/// Calls back for each property in the order of the form, a list before its rows. The place is
/// valid during the call.
void forEachProperty(const ElementNode& element,
                     utils::core::function_ref<void(const PropertyPlace&)> callback);

/// The path of the property that the element has by that name; nothing if there is none.
[[nodiscard]] std::optional<std::string> findProperty(const ElementNode& element,
                                                      std::string_view path);

/// The key of an element and, joined to it, the path of one of its properties.
struct PropertyAddress {
    /// The element that the key names.
    ElementNode* element;
    /// The path of the property in that element.
    std::string path;
};

/// What an address such as "Plant.Pump 1.alarmLimits.0.high" names: of the beginnings that are keys
/// of elements the longest whose element has the property. Nothing if there is none.
[[nodiscard]] std::optional<PropertyAddress> findProperty(const Workbench& workbench,
                                                          std::string_view address);

/// The longest beginning of the address that is the key of an element, and what stands behind it.
/// Nothing if there is none.
[[nodiscard]] std::optional<PropertyAddress> splitAddress(const Workbench& workbench,
                                                          std::string_view address);

/// Why there is no such property, in a sentence for the user.
[[nodiscard]] std::string propertyNotFound(const Workbench& workbench, std::string_view address);

/// Calls back with the property of that path.
void withProperty(const PropertyAddress& address,
                  utils::core::function_ref<void(const PropertyPlace&)> callback);

/// @name What a property is, asked so that a skill that fails is named
/// @{

[[nodiscard]] bool isVisible(const PropertyPlace& place);
/// As good as that of the property's controller.
[[nodiscard]] const bindings::PropertyController::PropertyState&
stateOf(const PropertyPlace& place);
/// The text of the value as the user sees it; may have several lines.
[[nodiscard]] std::wstring valueOf(const PropertyPlace& place);
/// The same on one line.
[[nodiscard]] std::string valueText(const PropertyPlace& place);
/// @}

} // namespace corvane::workbench::host
