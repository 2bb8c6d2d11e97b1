#pragma once

// Texts that are completed after they were typed.

#include <cstdint>
#include <string>
#include <string_view>

namespace corvane::workbench::kit::internal {

/// What an adjuster makes of a text as after a paste: the cursor stands behind it.
template <class Adjuster>
[[nodiscard]] std::wstring completed(const Adjuster& adjust, std::wstring_view typed) {
    std::wstring result(typed);
    std::uint64_t selectionStart = result.size();
    std::uint64_t selectionEnd = result.size();
    adjust(result, selectionStart, selectionEnd);
    return result;
}

} // namespace corvane::workbench::kit::internal
