#pragma once

// Finds the element that holds a reference.

namespace corvane::workbench::model::internal {
class BasicElementReference;
}

namespace corvane::workbench::host {

class ElementNode;

/// Null when the reference stands in no tree.
[[nodiscard]] const ElementNode*
ownerOf(const model::internal::BasicElementReference& reference) noexcept;

} // namespace corvane::workbench::host
