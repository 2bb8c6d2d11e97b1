#include "settingsEditor.hpp"

#include "editors.hpp"
#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/json/Object.hpp>

namespace pump_station {

namespace bindings = corvane::workbench::bindings;
namespace encoder = corvane::utils::json::encoder;
namespace string = corvane::utils::string;

using corvane::workbench::json::Object;

EditableProperty settingsEditor(const Label& label, Object& settings) {
    EditableProperty property = describe(label, EditableProperty::Editor::Text);
    property.text = [&settings] {
        return settings.empty()
                   ? std::wstring()
                   : string::toWide(settings.toString(encoder::Document::Format::Compact));
    };
    property.setText = [&settings, handle = label.property](std::wstring_view typed) -> State {
        Object edited;
        if (!typed.empty()) {
            auto parsed = Object::fromString(string::toUtf8(typed), Object::kCorvaneElementFilter);
            if (!parsed) {
                return tl::unexpected(std::move(parsed.error()));
            }
            edited = std::move(*parsed);
        }
        settings = std::move(edited);
        handle.publish(bindings::Action::Update, 0);
        return {};
    };
    return property;
}

} // namespace pump_station
