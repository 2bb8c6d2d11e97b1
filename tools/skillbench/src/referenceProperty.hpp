#pragma once

// Finds the property that a reference is.

#include <string>

namespace corvane::workbench::host {
class ElementNode;
}
namespace corvane::workbench::model::internal {
class BasicElementReference;
}
namespace corvane::workbench::skill {
struct EditableProperty;
}

namespace corvane::skillbench {

/// The path of the reference among the properties of its element; empty when it is none of them.
[[nodiscard]] std::string
propertyPath(const workbench::model::internal::BasicElementReference& reference,
             const workbench::host::ElementNode& owner);

/// Whether the property is that reference.
[[nodiscard]] bool isProperty(const workbench::model::internal::BasicElementReference& reference,
                              const workbench::skill::EditableProperty& property);

} // namespace corvane::skillbench
