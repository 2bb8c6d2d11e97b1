#pragma once

// Makes sure that a configuration that is about to be saved can be loaded again.

#include <string_view>

namespace corvane::workbench::host {

class ElementNode;

/// Skills write the settings of their elements themselves. There may be members among them that are
/// reserved for the workbench, the same member twice, or more levels than can be read.
/// @throws std::runtime_error that says what is wrong.
void checkSaved(const ElementNode& root, std::string_view text);

} // namespace corvane::workbench::host
