#pragma once

#include <string>

namespace corvane::workbench::skill {
class Element;
}

namespace corvane::workbench::testing {

/// The settings of an element as it saves them, as an object of JSON without whitespace. The
/// element need not stand in a tree: it may be a copy that its factory has made.
[[nodiscard]] std::string savedSettings(const skill::Element& element);

} // namespace corvane::workbench::testing
