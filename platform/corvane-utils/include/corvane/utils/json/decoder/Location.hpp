#pragma once

#include <cstdint>

namespace corvane::utils::json::decoder {

/// A place in a JSON text. A plain value.
class Location {
public:
    /// The place is not known.
    constexpr Location() noexcept = default;
    /// Line and column count from 1; the column counts bytes.
    constexpr Location(std::uint64_t line, std::uint64_t column) noexcept
        : line_(line), column_(column) {}

    /// Whether the place is known.
    [[nodiscard]] constexpr explicit operator bool() const noexcept { return line_ != 0; }
    /// 0 when the place is not known.
    /// @{
    [[nodiscard]] constexpr std::uint64_t line() const noexcept { return line_; }
    [[nodiscard]] constexpr std::uint64_t column() const noexcept { return column_; }
    /// @}

    /// Compares line and column.
    [[nodiscard]] friend constexpr bool operator==(const Location& left,
                                                   const Location& right) noexcept = default;

private:
    std::uint64_t line_ = 0;
    std::uint64_t column_ = 0;
};

} // namespace corvane::utils::json::decoder
