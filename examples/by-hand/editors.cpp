#include "editors.hpp"

#include <corvane/utils/numeric/format.hpp>
#include <corvane/utils/numeric/parse.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/i18n/translate.hpp>

namespace by_hand {

using workbench::bindings::Action;
using workbench::bindings::PropertyHandle;
using workbench::skill::EditableProperty;

std::wstring text(std::string_view english) {
    return workbench::i18n::translate("by_hand", english);
}

State check(bool condition, std::string_view message) {
    if (condition) {
        return {};
    }
    return tl::unexpected(text(message));
}

EditableProperty textEditor(std::string_view name, std::string_view displayName,
                            const PropertyHandle& property, std::string& value) {
    return {.name = std::string(name),
            .displayName = text(displayName),
            .editor = EditableProperty::Editor::Text,
            .property = property,
            .text = [&value] { return utils::string::toWide(value); },
            .setText = [&value, property](std::wstring_view entered) -> State {
                value = utils::string::toUtf8(entered);
                property.publish(Action::Update, 0);
                return {};
            }};
}

EditableProperty numberEditor(std::string_view name, std::string_view displayName,
                              const PropertyHandle& property, std::int64_t& value) {
    return {
        .name = std::string(name),
        .displayName = text(displayName),
        .editor = EditableProperty::Editor::Number,
        .property = property,
        .text = [&value] { return utils::string::toWide(utils::numeric::format(value).view()); },
        .setText = [&value, property](std::wstring_view entered) -> State {
            const auto number = utils::numeric::parse<std::int64_t>(utils::string::toUtf8(entered));
            if (!number) {
                return tl::unexpected(text("Enter a whole number."));
            }
            value = *number;
            property.publish(Action::Update, 0);
            return {};
        }};
}

EditableProperty referenceEditor(std::string_view name, std::string_view displayName,
                                 const PropertyHandle& property,
                                 const std::function<std::string()>& key) {
    return {.name = std::string(name),
            .displayName = text(displayName),
            .editor = EditableProperty::Editor::Reference,
            .property = property,
            .text = [key] { return utils::string::toWide(key()); }};
}

} // namespace by_hand
