#pragma once

// Whole texts from UTF-8 to UTF-16 and back. Wide text holds UTF-16 code units on every platform.

#include <corvane/utils/export.hpp>

#include <string>
#include <string_view>

namespace corvane::utils::string {

/// Malformed UTF-8 becomes U+FFFD once per maximal subpart, as detail::Utf8Decoder gives it.
[[nodiscard]] CORVANE_UTILS_EXPORT std::wstring toWide(std::string_view utf8);

/// A lone surrogate, and on platforms with a wider wchar_t a unit above 0xFFFF, becomes U+FFFD.
[[nodiscard]] CORVANE_UTILS_EXPORT std::string toUtf8(std::wstring_view utf16);

} // namespace corvane::utils::string
