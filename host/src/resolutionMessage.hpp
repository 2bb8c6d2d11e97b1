#pragma once

// Why a reference does not resolve.

#include <optional>
#include <string>

namespace corvane::workbench::model::internal {
class BasicElementReference;
}

namespace corvane::workbench::host {

/// The message of the reference's own resolution, to an element, attribute, event or task as its
/// type says; nothing when it resolves.
[[nodiscard]] std::optional<std::wstring>
resolutionMessage(const model::internal::BasicElementReference& reference);

} // namespace corvane::workbench::host
