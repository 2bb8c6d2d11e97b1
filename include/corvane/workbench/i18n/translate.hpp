#pragma once

// The one way of a user-visible text of the library or of a skill to the user interface.

#include <corvane/workbench/export.hpp>

#include <string>
#include <string_view>

namespace corvane::workbench::i18n {

/// Returns the text that the user is to see for `text`, in UTF-16. `context` names the area that
/// the text belongs to, in the form of a namespace path such as "workbench::json". Both are UTF-8.
///
/// There is no catalogue of translations: the result is `text` itself, whatever the context.
/// Malformed UTF-8 becomes U+FFFD. May be called from any thread.
[[nodiscard]] CORVANE_WORKBENCH_EXPORT std::wstring translate(std::string_view context,
                                                              std::string_view text);

} // namespace corvane::workbench::i18n
