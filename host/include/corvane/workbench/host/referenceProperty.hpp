#pragma once

// Which property a reference is.

#include <string>

namespace corvane::workbench::model::internal {
class BasicElementReference;
}
namespace corvane::workbench::skill {
struct EditableProperty;
}

namespace corvane::workbench::host {

class ElementNode;
class Workbench;

/// The path of the reference among the properties of its element; empty when it is none of them.
[[nodiscard]] std::string propertyPath(const model::internal::BasicElementReference& reference,
                                       const ElementNode& owner);

/// The address of the property that the reference is, or of its element when it is none of its
/// properties; "(no element)" when no element in the tree holds the reference.
[[nodiscard]] std::string placeOf(const model::internal::BasicElementReference& reference,
                                  const Workbench& workbench);

/// Whether the property is that reference.
[[nodiscard]] bool isProperty(const model::internal::BasicElementReference& reference,
                              const skill::EditableProperty& property);

} // namespace corvane::workbench::host
