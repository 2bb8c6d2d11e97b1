#pragma once

// Makes sure that a configuration that is about to be saved can be loaded again.

#include <string_view>

namespace corvane::workbench::host {

class ElementClassRegistry;
class ElementNode;

/// Skills write the settings of their elements themselves. There may be members among them that are
/// reserved for the workbench, the same member twice, or more levels than can be read.
/// When there are classes, the skills also load what they have saved, each element for itself, and
/// nothing stays of it. References are not resolved and properties not configured.
/// @throws std::runtime_error that says what is wrong.
void checkSaved(const ElementNode& root, std::string_view text,
                const ElementClassRegistry* classes);

} // namespace corvane::workbench::host
