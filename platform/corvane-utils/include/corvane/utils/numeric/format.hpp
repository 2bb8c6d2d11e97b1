#pragma once

// Numbers as text, the same on every platform and in every locale.

#include <corvane/utils/export.hpp>
#include <corvane/utils/string/BasicStaticString.hpp>

#include <cstdint>

namespace corvane::utils::numeric {

/// Decimal digits, with a minus sign in front of a negative number.
/// @{
[[nodiscard]] CORVANE_UTILS_EXPORT string::BasicStaticString<char, 20> format(std::int64_t number);
[[nodiscard]] CORVANE_UTILS_EXPORT string::BasicStaticString<char, 20> format(std::uint64_t number);
/// @}

/// The shortest text that reads back as the same number, plain or scientific, whichever is
/// shorter: "250", "1.5", "1e+30". "inf", "-inf" and "nan" for what is no number.
[[nodiscard]] CORVANE_UTILS_EXPORT string::BasicStaticString<char, 24> format(double number);

} // namespace corvane::utils::numeric
