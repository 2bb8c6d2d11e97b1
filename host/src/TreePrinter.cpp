#include <corvane/workbench/host/TreePrinter.hpp>

#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/host/displayText.hpp>
#include <corvane/workbench/host/editableProperties.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <ostream>

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
    print(onOneLine(element.name()) + "  (" + onOneLine(element.type()) + ", " +
          countText(element.properties().propertyErrorCount(), "error") + ")");
    ++level_;
    const auto printOwn = [&](const skill::EditableProperty& property) {
        printProperty(element, property, {});
    };
    callSkill(
        CurrentOperation::Kind::ListProperties,
        [&] { element.skillElement()->forEachEditableProperty(printOwn); }, element);
    --level_;
}

void TreePrinter::print(const std::string& line, bool pointedAt) {
    const std::string margin = !pointedAt_ ? "" : pointedAt ? "> " : "  ";
    out_ << margin + std::string(2 * level_, ' ') + line + '\n';
}

void TreePrinter::printProperty(const ElementNode& element, const skill::EditableProperty& property,
                                const std::string& prefix) {
    const std::string path = prefix + property.name;
    const PropertyPlace place{element, property, path, nullptr};
    const std::string value = valueText(place);
    const auto& state = stateOf(place);
    print(std::string(!isVisible(place) ? "hidden "
                      : state           ? "ok     "
                                        : "error  ") +
              onOneLine(property.displayName) + ':' + (value.empty() ? "" : " ") + value +
              (state ? std::string() : "  <- " + onOneLine(state.error())),
          isSame(property.property, pointedAt_));
    if (property.forEachSubElement) {
        std::size_t index = 0;
        const auto printEach = [&](skill::SubElement& row) {
            printRow(element, row, path, index++);
        };
        level_ += 4;
        property.forEachSubElement(printEach);
        level_ -= 4;
    }
}

void TreePrinter::printRow(const ElementNode& element, skill::SubElement& row,
                           const std::string& listPath, std::size_t index) {
    print(std::to_string(index) + ": " + onOneLine(row.displayName()) + "  (" +
          countText(row.propertyErrorCount(), "error") + ")");
    ++level_;
    const std::string prefix = listPath + "." + std::to_string(index) + ".";
    const auto printOwn = [&](const skill::EditableProperty& property) {
        printProperty(element, property, prefix);
    };
    row.forEachEditableProperty(printOwn);
    --level_;
}

} // namespace corvane::workbench::host
