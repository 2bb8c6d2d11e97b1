#include "printTree.hpp"

#include "columns.hpp"
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/Element.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <ostream>
#include <string>

namespace pump_station::demo {

namespace host = corvane::workbench::host;
namespace skill = corvane::workbench::skill;

using corvane::utils::string::toUtf8;

namespace {

constexpr std::size_t kTreeWidth = 38;
constexpr std::size_t kPropertyWidth = 26;

void printBelow(const host::ElementNode& parent, const std::string& margin, std::ostream& out) {
    for (std::size_t index = 0; index < parent.childCount(); ++index) {
        const host::ElementNode& child = parent.child(index);
        const bool last = index + 1 == parent.childCount();
        out << padded(margin + (last ? "└─ " : "├─ ") + std::string(child.name()), kTreeWidth)
            << toUtf8(child.type());
        if (const auto errors = child.properties().propertyErrorCount(); errors != 0) {
            out << ", " << errorCountText(errors);
        }
        out << '\n';
        printBelow(child, margin + (last ? "   " : "│  "), out);
    }
}

void printPropertiesOf(auto& described, const std::string& margin, std::ostream& out) {
    const auto print = [&](const skill::EditableProperty& property) {
        if (!property.property.visible()) {
            return;
        }
        out << padded(margin + toUtf8(property.displayName), kPropertyWidth)
            << toUtf8(property.text());
        if (const auto& state = property.property.state(); !state) {
            out << "  ← " << toUtf8(state.error());
        }
        out << '\n';
        if (!property.forEachSubElement) {
            return;
        }
        const auto printRow = [&](skill::SubElement& row) {
            out << margin << "  " << toUtf8(row.displayName()) << '\n';
            printPropertiesOf(row, margin + "    ", out);
        };
        property.forEachSubElement(printRow);
    };
    described.forEachEditableProperty(print);
}

} // namespace

void printTree(const host::ElementNode& top, std::ostream& out) {
    printBelow(top, "  ", out);
}

void printProperties(const host::ElementNode& element, std::ostream& out) {
    printPropertiesOf(*element.skillElement(), "  ", out);
}

void printEverything(const host::ElementNode& top, std::ostream& out) {
    for (std::size_t index = 0; index < top.childCount(); ++index) {
        const host::ElementNode& child = top.child(index);
        out << child.primaryKey() << ", " << toUtf8(child.type()) << ", " << child.uuid().toString()
            << '\n';
        printProperties(child, out);
        printEverything(child, out);
    }
}

} // namespace pump_station::demo
