#pragma once

// Splits texts such as "KEY=VALUE", where the key may contain "=" itself.

#include <corvane/utils/core/function_ref.hpp>

#include <optional>
#include <string_view>
#include <utility>

namespace corvane::skillbench {

/// Splits at the first "=" that has something the function accepts in front of it; if there is
/// none, at the first "=" outside brackets, else at the first one. Nothing without "=".
[[nodiscard]] std::optional<std::pair<std::string_view, std::string_view>>
splitAssignment(std::string_view text, utils::core::function_ref<bool(std::string_view)> accepts);

} // namespace corvane::skillbench
