#include "writeConfiguration.hpp"

#include "checkSaved.hpp"
#include "reservedMembers.hpp"
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/json/internal/StringOutputStream.hpp>
#include <corvane/workbench/skill/internal/ElementAccess.hpp>

#include <string>

namespace corvane::workbench::host {

namespace {

namespace encoder = utils::json::encoder;

void writeChildren(const ElementNode& parent, encoder::Object& object);

void writeElement(const ElementNode& node, encoder::Value value) {
    encoder::Object wrapper = value.writeObject();
    encoder::Object object = wrapper.addMember(node.elementClass().id()).writeObject();
    object.addMember(kNameMember).writeString(node.name());
    object.addMember(kUuidMember).writeString(node.uuid().toString());
    if (node.accessControl()) {
        encoder::Value accessControl = object.addMember(kAccessControlMember);
        node.accessControl()->encode(accessControl);
    }
    callSkill(
        CurrentOperation::Kind::Save,
        [&] { skill::internal::ElementAccess::save(*node.skillElement(), object); }, node);
    if (node.childCount() != 0) {
        writeChildren(node, object);
    }
}

void writeChildren(const ElementNode& parent, encoder::Object& object) {
    encoder::Array array = object.addMember(kChildrenMember).writeArray();
    for (std::size_t index = 0; index < parent.childCount(); ++index) {
        writeElement(parent.child(index), array.addElement());
    }
}

} // namespace

void writeConfiguration(const ElementNode& root, const ElementClassRegistry* classes,
                        utils::io::OutputStream<char>& stream) {
    json::internal::StringOutputStream collected;
    encoder::Document document(collected, encoder::Document::Format::Indented);
    encoder::Object object = document.root().writeObject();
    writeChildren(root, object);
    document.close();
    const std::string text = collected.take();
    checkSaved(root, text, classes);
    stream.write(text);
    stream.flush();
}

} // namespace corvane::workbench::host
