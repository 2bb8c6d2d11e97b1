#pragma once

// Text as numbers, the same on every platform and in every locale.

#include <corvane/utils/export.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace corvane::utils::numeric {

/// A number at the start of a text and how many characters it takes.
struct ParsedDouble {
    double value;       ///< as near as a double comes to it
    std::size_t length; ///< in characters
};

/// Reads the longest number at the very start of the text, in plain or scientific notation. A
/// space or a plus sign in front, "inf", "nan" and hexadecimal forms are not numbers. Fails as
/// well when the number is too large for a double or so small that only zero is left of it.
[[nodiscard]] CORVANE_UTILS_EXPORT std::optional<ParsedDouble>
parseDoublePrefix(std::string_view text) noexcept;

/// Reads a number that must be the whole text. There are forms for std::int64_t (decimal digits,
/// perhaps a minus sign), std::uint64_t (decimal digits) and double (as parseDoublePrefix).
/// Fails when the number does not fit the type.
template <class T>
[[nodiscard]] std::optional<T> parse(std::string_view text) noexcept = delete;

/// One of the forms above.
/// @{
template <>
[[nodiscard]] CORVANE_UTILS_EXPORT std::optional<std::int64_t>
parse<std::int64_t>(std::string_view text) noexcept;
template <>
[[nodiscard]] CORVANE_UTILS_EXPORT std::optional<std::uint64_t>
parse<std::uint64_t>(std::string_view text) noexcept;
template <>
[[nodiscard]] CORVANE_UTILS_EXPORT std::optional<double>
parse<double>(std::string_view text) noexcept;
/// @}

} // namespace corvane::utils::numeric
