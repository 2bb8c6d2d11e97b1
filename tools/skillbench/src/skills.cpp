#include "CommandLine.hpp"
#include "Failure.hpp"
#include "StandardOutputStream.hpp"
#include "commands.hpp"
#include "text.hpp"
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/Workbench.hpp>
#include <corvane/workbench/model/ElementCategory.hpp>

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::skillbench {

namespace {

namespace encoder = utils::json::encoder;
namespace host = workbench::host;
namespace skill = workbench::skill;
using utils::string::toUtf8;

std::string_view categoryText(const skill::Element::Class& elementClass) {
    return workbench::model::toBasicString<char>(elementClass.category());
}

std::string description(const host::LoadedSkill& loaded) {
    const skill::Skill::Class& skillClass = loaded.skillClass();
    std::string result = onOneLine(skillClass.id()) + ' ' + onOneLine(skillClass.version()) + "  " +
                         onOneLine(skillClass.displayName()) + '\n';
    std::size_t idWidth = 0;
    std::size_t categoryWidth = 0;
    for (const skill::Element::Class& elementClass : loaded.elementClasses()) {
        idWidth = std::max(idWidth, elementClass.id().size());
        categoryWidth = std::max(categoryWidth, categoryText(elementClass).size());
    }
    for (const skill::Element::Class& elementClass : loaded.elementClasses()) {
        result += "  " + padded(onOneLine(elementClass.id()), idWidth) + "  " +
                  padded(categoryText(elementClass), categoryWidth) + "  " +
                  onOneLine(elementClass.displayName()) + '\n';
    }
    return result;
}

void printText(const host::Workbench& workbench, std::ostream& out) {
    for (const auto& loaded : workbench.skills()) {
        out << host::callSkill(
            host::CurrentOperation::Kind::Describe, [&] { return description(*loaded); },
            loaded->id());
    }
}

void writeSkill(encoder::Object object, const host::LoadedSkill& loaded) {
    const skill::Skill::Class& skillClass = loaded.skillClass();
    object.addMember("id").writeString(skillClass.id());
    object.addMember("version").writeString(skillClass.version());
    object.addMember("displayName").writeString(toUtf8(skillClass.displayName()));
    encoder::Array classes = object.addMember("elementClasses").writeArray();
    for (const skill::Element::Class& elementClass : loaded.elementClasses()) {
        encoder::Object entry = classes.addElement().writeObject();
        entry.addMember("id").writeString(elementClass.id());
        entry.addMember("uuid").writeString(elementClass.uuid().toString());
        entry.addMember("category").writeString(categoryText(elementClass));
        entry.addMember("displayName").writeString(toUtf8(elementClass.displayName()));
        entry.addMember("description").writeString(toUtf8(elementClass.description()));
    }
}

void printJson(const host::Workbench& workbench, std::ostream& out) {
    // A program gets all or nothing.
    std::ostringstream whole;
    {
        StandardOutputStream stream(whole);
        encoder::Document document(stream, encoder::Document::Format::Indented);
        encoder::Array list = document.root().writeObject().addMember("skills").writeArray();
        for (const auto& loaded : workbench.skills()) {
            host::callSkill(
                host::CurrentOperation::Kind::Describe,
                [&] { writeSkill(list.addElement().writeObject(), *loaded); }, loaded->id());
        }
        document.close();
    }
    out << whole.view();
}

} // namespace

int skills(Arguments arguments, const Streams& streams) {
    std::vector<std::string> libraries;
    bool json = false;
    CommandLine commandLine("skillbench skills",
                            "Lists the skills of libraries: id, version and name of each, then id, "
                            "category and name of its element classes.");
    commandLine.addFlag("json", json, "machine-readable output");
    commandLine.addParameters("LIBRARY", libraries, "the skill libraries");
    if (!commandLine.parse(arguments, streams.out)) {
        return kDone;
    }

    host::Workbench workbench;
    for (const std::string& library : libraries) {
        if (const auto opened = workbench.loadSkills(pathOf(library)); !opened) {
            throw Failure(kWrongUsage, opened.error().text);
        }
    }
    if (json) {
        printJson(workbench, streams.out);
    } else {
        printText(workbench, streams.out);
    }
    return kDone;
}

} // namespace corvane::skillbench
