#pragma once

// Shows elements as text.

#include <iosfwd>

namespace corvane::workbench::host {
class ElementNode;
}

namespace pump_station::demo {

/// The elements below one, one a line, with their type and, where there are any, the number of
/// errors at and below them.
void printTree(const corvane::workbench::host::ElementNode& top, std::ostream& out);

/// All visible properties of an element and of the rows of its lists, one a line, with the value
/// and what is wrong with it.
void printProperties(const corvane::workbench::host::ElementNode& element, std::ostream& out);

/// The elements below one with their keys, types, UUIDs and properties.
void printEverything(const corvane::workbench::host::ElementNode& top, std::ostream& out);

} // namespace pump_station::demo
