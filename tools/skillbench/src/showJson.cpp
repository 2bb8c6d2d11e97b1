#include "showJson.hpp"

#include "OpenConfiguration.hpp"
#include "StandardOutputStream.hpp"
#include "configurationProblems.hpp"
#include "text.hpp"
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/numeric/format.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/editableProperties.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

namespace corvane::skillbench {

namespace {

namespace encoder = utils::json::encoder;
namespace host = workbench::host;
namespace skill = workbench::skill;
using utils::string::toUtf8;

std::string_view editorText(skill::EditableProperty::Editor editor) {
    using Editor = skill::EditableProperty::Editor;
    switch (editor) {
    case Editor::Text:
        return "text";
    case Editor::Number:
        return "number";
    case Editor::Choice:
        return "choice";
    case Editor::Duration:
        return "duration";
    case Editor::TimeStamp:
        return "timeStamp";
    case Editor::Uuid:
        return "uuid";
    case Editor::Reference:
        return "reference";
    case Editor::SubElementList:
        return "list";
    case Editor::Flag:
        return "flag";
    }
    return "unknown";
}

void writeCount(encoder::Object& object, std::string_view name, std::uint64_t count) {
    object.addMember(name).writeNumber(utils::numeric::format(count));
}

void writeProperty(encoder::Object object, const host::ElementNode& element,
                   const skill::EditableProperty& property, const std::string& prefix) {
    const std::string path = prefix + property.name;
    const host::PropertyPlace place{element, property, path, nullptr};
    object.addMember("name").writeString(property.name);
    object.addMember("displayName").writeString(toUtf8(property.displayName));
    object.addMember("editor").writeString(editorText(property.editor));
    object.addMember("value").writeString(toUtf8(valueOf(place)));
    object.addMember("visible").writeBool(isVisible(place));
    if (const auto& state = stateOf(place); !state) {
        object.addMember("error").writeString(toUtf8(state.error()));
    }
    if (!property.choices.empty()) {
        encoder::Array choices = object.addMember("choices").writeArray();
        for (const std::wstring& choice : property.choices) {
            choices.addElement().writeString(toUtf8(choice));
        }
    }
    if (property.forEachSubElement) {
        encoder::Array rows = object.addMember("rows").writeArray();
        std::size_t index = 0;
        const auto writeRow = [&](skill::SubElement& row) {
            const std::string rowPrefix = path + "." + std::to_string(index++) + ".";
            encoder::Object rowObject = rows.addElement().writeObject();
            rowObject.addMember("displayName").writeString(toUtf8(row.displayName()));
            writeCount(rowObject, "errorCount", row.propertyErrorCount());
            encoder::Array properties = rowObject.addMember("properties").writeArray();
            const auto writeRowProperty = [&](const skill::EditableProperty& rowProperty) {
                writeProperty(properties.addElement().writeObject(), element, rowProperty,
                              rowPrefix);
            };
            row.forEachEditableProperty(writeRowProperty);
        };
        property.forEachSubElement(writeRow);
    }
}

void writeChildren(encoder::Array array, const host::ElementNode& parent);

void writeElement(encoder::Object object, const host::ElementNode& element) {
    object.addMember("name").writeString(element.name());
    object.addMember("key").writeString(element.primaryKey());
    object.addMember("uuid").writeString(element.uuid().toString());
    object.addMember("class").writeString(element.elementClass().id());
    object.addMember("type").writeString(toUtf8(element.type()));
    writeCount(object, "errorCount", element.properties().propertyErrorCount());
    encoder::Array properties = object.addMember("properties").writeArray();
    const auto write = [&](const skill::EditableProperty& property) {
        writeProperty(properties.addElement().writeObject(), element, property, {});
    };
    host::callSkill(
        host::CurrentOperation::Kind::ListProperties,
        [&] { element.skillElement()->forEachEditableProperty(write); }, element);
    writeChildren(object.addMember("children").writeArray(), element);
}

void writeChildren(encoder::Array array, const host::ElementNode& parent) {
    for (std::size_t index = 0; index < parent.childCount(); ++index) {
        writeElement(array.addElement().writeObject(), parent.child(index));
    }
}

} // namespace

void showJson(const OpenConfiguration& configuration, std::ostream& out) {
    StandardOutputStream stream(out);
    encoder::Document document(stream, encoder::Document::Format::Indented);
    encoder::Object object = document.root().writeObject();
    object.addMember("configuration").writeString(pathText(configuration.file()));
    object.addMember("loaded").writeBool(configuration.loaded());
    object.addMember("complete").writeBool(configuration.complete());
    writeJson(object.addMember("problems").writeArray(), configurationProblems(configuration));
    if (configuration.loaded()) {
        const host::Workbench& workbench = configuration.workbench();
        writeCount(object, "elementCount", workbench.elementCount());
        writeCount(object, "errorCount", workbench.root().properties().propertyErrorCount());
        writeChildren(object.addMember("elements").writeArray(), workbench.root());
    }
    document.close();
}

} // namespace corvane::skillbench
