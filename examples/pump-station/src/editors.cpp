#include "editors.hpp"

#include "durations.hpp"
#include "text.hpp"
#include <corvane/utils/core/Uuid.hpp>
#include <corvane/utils/numeric/parse.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/bindings/functional.hpp>
#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <algorithm>
#include <cmath>

namespace pump_station {

namespace bindings = corvane::workbench::bindings;
namespace chrono = corvane::workbench::chrono;
namespace core = corvane::utils::core;
namespace functional = corvane::workbench::bindings::functional;
namespace model = corvane::workbench::model;
namespace numeric = corvane::utils::numeric;
namespace string = corvane::utils::string;

namespace {

using Editor = EditableProperty::Editor;

void publish(const bindings::PropertyHandle& property) {
    property.publish(bindings::Action::Update, 0);
}

// Runs an adjuster as after a paste: the cursor stands behind the text.
std::wstring completed(const auto& adjust, std::wstring_view typed) {
    std::wstring result(typed);
    std::uint64_t selectionStart = result.size();
    std::uint64_t selectionEnd = result.size();
    adjust(result, selectionStart, selectionEnd);
    return result;
}

} // namespace

EditableProperty describe(const Label& label, Editor editor) {
    EditableProperty property;
    property.name = label.name;
    property.displayName = text(label.displayName);
    property.editor = editor;
    property.property = label.property;
    return property;
}

EditableProperty textEditor(const Label& label, std::string& value) {
    EditableProperty property = describe(label, Editor::Text);
    property.text = [&value] { return string::toWide(value); };
    property.setText = [&value, handle = label.property](std::wstring_view typed) -> State {
        value = string::toUtf8(typed);
        publish(handle);
        return {};
    };
    return property;
}

EditableProperty numberEditor(const Label& label, double& value) {
    EditableProperty property = describe(label, Editor::Number);
    property.text = [&value] { return numberText(value); };
    property.setText = [&value, handle = label.property](std::wstring_view typed) -> State {
        const auto number = numeric::parse<double>(string::toUtf8(typed));
        if (!number || !std::isfinite(*number)) {
            return tl::unexpected(text("“{}” is not a number.", typed));
        }
        value = *number;
        publish(handle);
        return {};
    };
    return property;
}

EditableProperty integerEditor(const Label& label, std::int64_t& value) {
    EditableProperty property = describe(label, Editor::Number);
    property.text = [&value] { return numberText(value); };
    property.setText = [&value, handle = label.property](std::wstring_view typed) -> State {
        const auto number = numeric::parse<std::int64_t>(string::toUtf8(typed));
        if (!number) {
            return tl::unexpected(text("“{}” is not a whole number.", typed));
        }
        value = *number;
        publish(handle);
        return {};
    };
    return property;
}

EditableProperty durationEditor(const Label& label, chrono::Duration& value) {
    EditableProperty property = describe(label, Editor::Duration);
    property.text = [&value] { return durationText(value); };
    property.setText = [&value, handle = label.property](std::wstring_view typed) -> State {
        const std::optional<chrono::Duration> duration = parseDuration(typed);
        if (!duration) {
            return tl::unexpected(
                text("“{}” is not a duration; write for example “250ms” or “1.5h”.", typed));
        }
        value = *duration;
        publish(handle);
        return {};
    };
    return property;
}

EditableProperty timeStampEditor(const Label& label, std::string& value) {
    EditableProperty property = describe(label, Editor::TimeStamp);
    property.text = [&value] { return string::toWide(value); };
    property.setText = [&value, handle = label.property](std::wstring_view typed) -> State {
        value = typed.empty() ? std::string()
                              : string::toUtf8(completed(functional::AdjustTimeStampText(), typed));
        publish(handle);
        return {};
    };
    return property;
}

EditableProperty uuidEditor(const Label& label, core::Uuid& value) {
    EditableProperty property = describe(label, Editor::Uuid);
    property.text = [&value] { return string::toWide(value.toString()); };
    property.setText = [&value, handle = label.property](std::wstring_view typed) -> State {
        value = core::Uuid::parse(string::toUtf8(completed(functional::AdjustUuidText(), typed)))
                    .value();
        publish(handle);
        return {};
    };
    return property;
}

EditableProperty readOnly(const Label& label, std::function<std::wstring()> text) {
    EditableProperty property = describe(label, Editor::Text);
    property.text = std::move(text);
    return property;
}

EditableProperty referenceEditor(const Label& label,
                                 const model::internal::BasicElementReference& reference) {
    EditableProperty property = describe(label, Editor::Reference);
    property.text = [&reference] {
        const model::internal::ElementReferenceData& data = reference.data();
        return string::toWide((data.isImportReference() ? ".import:" : "") + data.primaryKey());
    };
    return property;
}

EditableProperty choiceEditor(const Label& label, std::span<const std::string_view> texts,
                              std::function<std::size_t()> chosen,
                              std::function<void(std::size_t)> choose) {
    EditableProperty property = describe(label, Editor::Choice);
    for (const std::string_view& choice : texts) {
        property.choices.push_back(text(choice));
    }
    property.text = [texts, chosen = std::move(chosen)] { return text(texts[chosen()]); };
    property.setText = [choices = property.choices, choose = std::move(choose),
                        handle = label.property](std::wstring_view typed) -> State {
        const auto found = std::ranges::find(choices, typed);
        if (found == choices.end()) {
            return tl::unexpected(text("“{}” is not one of the choices.", typed));
        }
        choose(static_cast<std::size_t>(found - choices.begin()));
        publish(handle);
        return {};
    };
    return property;
}

std::wstring rowCountText(std::size_t count) {
    if (count == 0) {
        return text("no rows");
    }
    return count == 1 ? text("1 row")
                      : text("{} rows", numberText(static_cast<std::int64_t>(count)));
}

State noSuchRow() {
    return tl::unexpected(text("The list has no row of that number."));
}

EditableProperty afterChange(EditableProperty property, std::function<void()> action) {
    property.setText = [setText = std::move(property.setText),
                        action = std::move(action)](std::wstring_view typed) {
        State result = setText(typed);
        if (result) {
            action();
        }
        return result;
    };
    return property;
}

} // namespace pump_station
