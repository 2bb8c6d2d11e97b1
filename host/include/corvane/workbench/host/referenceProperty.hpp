#pragma once

// Finds the property that a reference is.

#include <string>

namespace corvane::workbench::model::internal {
class BasicElementReference;
}
namespace corvane::workbench::skill {
struct EditableProperty;
}

namespace corvane::workbench::host {

class ElementNode;

/// The path of the reference among the properties of its element; empty when it is none of them.
[[nodiscard]] std::string propertyPath(const model::internal::BasicElementReference& reference,
                                       const ElementNode& owner);

/// Whether the property is that reference.
[[nodiscard]] bool isProperty(const model::internal::BasicElementReference& reference,
                              const skill::EditableProperty& property);

} // namespace corvane::workbench::host
