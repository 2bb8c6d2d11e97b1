#include <corvane/workbench/host/TreePrinter.hpp>

#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/host/displayText.hpp>
#include <corvane/workbench/host/editableProperties.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <ostream>
#include <string>

namespace corvane::workbench::host {

namespace {

bool isSame(const bindings::PropertyHandle& left, const bindings::PropertyHandle& right) {
    return left && right && &left.controller() == &right.controller() &&
           left.property() == right.property();
}

} // namespace

TreePrinter::TreePrinter(std::ostream& out) : out_(out) {}

TreePrinter::TreePrinter(std::ostream& out, const bindings::PropertyHandle& pointedAt)
    : out_(out), pointedAt_(pointedAt) {}

void TreePrinter::printElement(const ElementNode& element) {
    printProperties(element);
    ++level_;
    printChildren(element);
    --level_;
}

void TreePrinter::printChildren(const ElementNode& element) {
    for (std::size_t index = 0; index < element.childCount(); ++index) {
        printElement(element.child(index));
    }
}

void TreePrinter::printProperties(const ElementNode& element) {
    beginLine() << onOneLine(element.name()) << "  (" << onOneLine(element.type()) << ", "
                << countText(element.properties().propertyErrorCount(), "error") << ")\n";
    ++level_;
    const auto print = [&](const skill::EditableProperty& property) { printProperty(property); };
    element.skillElement()->forEachEditableProperty(print);
    --level_;
}

std::ostream& TreePrinter::beginLine(bool pointedAt) {
    if (pointedAt_) {
        out_ << (pointedAt ? "> " : "  ");
    }
    return out_ << std::string(2 * level_, ' ');
}

void TreePrinter::printProperty(const skill::EditableProperty& property) {
    const auto& state = property.property.state();
    const bool visible = property.property.visible();
    beginLine(isSame(property.property, pointedAt_)) << (!visible ? "hidden "
                                                         : state  ? "ok     "
                                                                  : "error  ")
                                                     << onOneLine(property.displayName) << ':';
    if (const std::string value = valueText(property); !value.empty()) {
        out_ << ' ' << value;
    }
    if (!state) {
        out_ << "  <- " << onOneLine(state.error());
    }
    out_ << '\n';
    if (property.forEachSubElement) {
        std::size_t index = 0;
        const auto print = [&](skill::SubElement& row) { printRow(row, index++); };
        level_ += 4;
        property.forEachSubElement(print);
        level_ -= 4;
    }
}

void TreePrinter::printRow(skill::SubElement& row, std::size_t index) {
    beginLine() << index << ": " << onOneLine(row.displayName()) << "  ("
                << countText(row.propertyErrorCount(), "error") << ")\n";
    ++level_;
    const auto print = [&](const skill::EditableProperty& property) { printProperty(property); };
    row.forEachEditableProperty(print);
    --level_;
}

} // namespace corvane::workbench::host
