#pragma once

// Words for the user about a JSON text that could not be read.

#include <corvane/workbench/export.hpp>

#include <exception>
#include <string>

namespace corvane::workbench::i18n {

/// Turns the error of a JSON decoder into a message for the user: "… (line 12): unexpected
/// character" becomes "Error on line 12: unexpected character". An error that names no line, line
/// 0, or a line number that does not fit in 64 bits keeps its whole text.
///
/// Takes time linear in the length of the text and a bounded amount of stack. May be called from
/// any thread.
[[nodiscard]] CORVANE_WORKBENCH_EXPORT std::wstring jsonErrorMessage(const std::exception& error);

} // namespace corvane::workbench::i18n
