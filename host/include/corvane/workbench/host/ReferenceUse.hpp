#pragma once

namespace corvane::workbench::model::internal {
class BasicElementReference;
}

namespace corvane::workbench::host {

class ElementNode;

/// One reference to an element, seen from the element. See Workbench::referencesTo. Valid as long
/// as the reference.
struct ReferenceUse {
    /// The element that holds the reference; null for a reference that no configured property of
    /// an element in the tree holds.
    const ElementNode* owner = nullptr;
    /// The reference itself.
    const model::internal::BasicElementReference* reference = nullptr;
};

} // namespace corvane::workbench::host
