#pragma once

// The standard error for a configuration member that its reader does not know.

#include <corvane/workbench/export.hpp>

namespace corvane::utils::json::decoder {
class Name;
}

namespace corvane::workbench::config {

/// Throws a std::runtime_error saying `unknown parameter "NAME"`. When the name carries its
/// location in the file, the error is also a utils::json::decoder::Exception with that
/// location.
[[noreturn]] CORVANE_WORKBENCH_EXPORT void
throwUnknownParameterError(const utils::json::decoder::Name& name);

} // namespace corvane::workbench::config
