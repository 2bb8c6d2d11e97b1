#pragma once

// Descriptions of properties for a generic user interface, one function for each kind of setting.
// Each binds the property to the field that holds its value: the text is made from the field, and
// setting a text stores the value and publishes the property. The field must live as long as the
// description.

#include "Label.hpp"
#include "SubElementList.hpp"
#include "rules.hpp"
#include <corvane/workbench/bindings/Action.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace corvane::utils::core {
class Uuid;
}
namespace corvane::workbench::chrono {
class Duration;
}
namespace corvane::workbench::model {
class AttributeReference;
class ElementReference;
namespace internal {
class BasicElementReference;
}
} // namespace corvane::workbench::model

namespace pump_station {

using corvane::workbench::skill::EditableProperty;

/// The label filled in; no way yet to read or set the value.
[[nodiscard]] EditableProperty describe(const Label& label, EditableProperty::Editor editor);

[[nodiscard]] EditableProperty textEditor(const Label& label, std::string& value);
[[nodiscard]] EditableProperty numberEditor(const Label& label, double& value);
[[nodiscard]] EditableProperty integerEditor(const Label& label, std::int64_t& value);
[[nodiscard]] EditableProperty durationEditor(const Label& label,
                                              corvane::workbench::chrono::Duration& value);
/// Completes what the user types; an empty text stays empty.
[[nodiscard]] EditableProperty timeStampEditor(const Label& label, std::string& value);
/// Completes what the user types.
[[nodiscard]] EditableProperty uuidEditor(const Label& label, corvane::utils::core::Uuid& value);
/// A value that follows from others and cannot be set.
[[nodiscard]] EditableProperty readOnly(const Label& label, std::function<std::wstring()> text);
/// The reference is set by the workbench, which alone can make references from keys.
[[nodiscard]] EditableProperty
referenceEditor(const Label& label,
                const corvane::workbench::model::internal::BasicElementReference& reference);

/// A choice by index: `chosen` reads it, `choose` stores it.
[[nodiscard]] EditableProperty choiceEditor(const Label& label,
                                            std::span<const std::string_view> texts,
                                            std::function<std::size_t()> chosen,
                                            std::function<void(std::size_t)> choose);

/// A choice among the values 0, 1, ... of an enumeration, which have the texts.
template <class E>
[[nodiscard]] EditableProperty choiceEditor(const Label& label,
                                            std::span<const std::string_view> texts, E& value) {
    return choiceEditor(
        label, texts, [&value] { return static_cast<std::size_t>(value); },
        [&value](std::size_t index) { value = static_cast<E>(index); });
}

/// "no rows", "1 row", "2 rows".
[[nodiscard]] std::wstring rowCountText(std::size_t count);
/// The answer to a row number beyond the end of a list.
[[nodiscard]] State noSuchRow();

/// The rows of a list.
template <class Row>
[[nodiscard]] EditableProperty listEditor(const Label& label, SubElementList<Row>& rows) {
    EditableProperty property = describe(label, EditableProperty::Editor::SubElementList);
    property.text = [&rows] { return rowCountText(rows.size()); };
    property.forEachSubElement = [&rows](const corvane::utils::core::function_ref<void(
                                             corvane::workbench::skill::SubElement&)>& callback) {
        for (std::size_t index = 0; index < rows.size(); ++index) {
            callback(rows[index]);
        }
    };
    property.insertSubElement = [&rows, handle = label.property](std::size_t index) -> State {
        if (index > rows.size()) {
            return noSuchRow();
        }
        rows.insert(index);
        handle.publish(corvane::workbench::bindings::Action::Insert, index);
        return {};
    };
    property.removeSubElement = [&rows, handle = label.property](std::size_t index) -> State {
        if (index >= rows.size()) {
            return noSuchRow();
        }
        rows.remove(index);
        handle.publish(corvane::workbench::bindings::Action::Remove, index);
        return {};
    };
    return property;
}

/// Makes the description call `action` after each successful change, before it returns.
[[nodiscard]] EditableProperty afterChange(EditableProperty property, std::function<void()> action);

} // namespace pump_station
