#pragma once

// Writes the elements of a tree as a configuration.

#include <corvane/utils/io/OutputStream.hpp>

namespace corvane::workbench::host {

class ElementClassRegistry;
class ElementNode;

/// Writes indented JSON and flushes the stream. What the stream and the skills throw comes out.
/// Writes nothing of a configuration that could not be loaded again; see checkSaved() for what the
/// classes are.
/// @throws std::runtime_error with the reason.
void writeConfiguration(const ElementNode& root, const ElementClassRegistry* classes,
                        utils::io::OutputStream<char>& stream);

} // namespace corvane::workbench::host
