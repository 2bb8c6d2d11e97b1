#pragma once

#include <corvane/workbench/bindings/PropertyHandle.hpp>

#include <cstddef>
#include <iosfwd>
#include <string>

namespace corvane::workbench::skill {
struct EditableProperty;
class SubElement;
} // namespace corvane::workbench::skill

namespace corvane::workbench::host {

class ElementNode;

/// Prints elements as a tree (UTF-8): each element with its type and the number of errors at and
/// below it, each property with its state (ok, error or hidden), name and value, and the rows of
/// lists. Configures what it prints.
class TreePrinter {
public:
    /// The stream must outlive the printer.
    explicit TreePrinter(std::ostream& out);
    /// With a margin in which ">" points at the lines of one property.
    TreePrinter(std::ostream& out, const bindings::PropertyHandle& pointedAt);

    /// The element, its properties and everything below it.
    void printElement(const ElementNode& element);
    /// Everything below the element.
    void printChildren(const ElementNode& element);
    /// The element and its properties alone.
    void printProperties(const ElementNode& element);

private:
    // Whole lines: a skill that fails while one is being made does not stop in the middle of it.
    void print(const std::string& line, bool pointedAt = false);
    void printProperty(const ElementNode& element, const skill::EditableProperty& property,
                       const std::string& prefix);
    void printRow(const ElementNode& element, skill::SubElement& row, const std::string& listPath,
                  std::size_t index);

    std::ostream& out_;
    bindings::PropertyHandle pointedAt_;
    std::size_t level_ = 0;
};

} // namespace corvane::workbench::host
