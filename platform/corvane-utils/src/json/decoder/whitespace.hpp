#pragma once

namespace corvane::utils::json::decoder::detail {

/// Whether the character may stand between the tokens of a JSON text.
[[nodiscard]] constexpr bool isWhitespace(char character) noexcept {
    return character == ' ' || character == '\n' || character == '\r' || character == '\t';
}

} // namespace corvane::utils::json::decoder::detail
