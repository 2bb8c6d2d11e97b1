#pragma once

// From the text of a key to the data of a reference, against the tree as it is now.

#include <corvane/workbench/model/internal/ElementReferenceData.hpp>

#include <string_view>

namespace corvane::workbench::host {

class ElementTree;

enum class ImportKeys {
    /// A key with the ".import:" prefix gives an import reference.
    Keep,
    /// It is resolved like any other, unless the prefix comes twice.
    Resolve
};

/// A reference to the element that the whole key names; empty for an empty key.
[[nodiscard]] model::internal::ElementReferenceData
elementReferenceData(const ElementTree& tree, std::string_view key, ImportKeys importKeys);

/// A reference to the member that the last component of the key names.
[[nodiscard]] model::internal::ElementReferenceData
memberReferenceData(const ElementTree& tree, std::string_view key, ImportKeys importKeys);

} // namespace corvane::workbench::host
