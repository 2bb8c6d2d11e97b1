#pragma once

// What the comparison of two texts and the making of a sort key have in common on Windows.

#include <windows.h>

#include <string_view>

namespace corvane::workbench::i18n {

inline constexpr DWORD kCollationFlags =
    LINGUISTIC_IGNORECASE | NORM_LINGUISTIC_CASING | SORT_DIGITSASNUMBERS;

/// The system refuses a null pointer, also for an empty text.
[[nodiscard]] inline const wchar_t* startOf(std::wstring_view text) noexcept {
    return text.data() != nullptr ? text.data() : L"";
}

} // namespace corvane::workbench::i18n
