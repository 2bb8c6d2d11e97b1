#pragma once

// The context in which the texts of the skill's library are translated: one for the whole library,
// because this code is linked into it.

#include <corvane/workbench/kit/Text.hpp>

#include <string>
#include <string_view>

namespace corvane::workbench::kit::internal {

[[nodiscard]] Text translationContext() noexcept;
void setTranslationContext(Text context) noexcept;

/// The text as the user is to see it.
[[nodiscard]] std::wstring translated(std::string_view english);

} // namespace corvane::workbench::kit::internal
