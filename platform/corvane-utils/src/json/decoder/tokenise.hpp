// From a JSON text to the tokens that the pull classes read.
#pragma once

#include <cstddef>
#include <string_view>

#include <corvane/utils/json/decoder/detail/Tape.hpp>

namespace corvane::utils::json::decoder::detail {

/// Fills the tape from its text and returns where the root value ends.
/// @throws WrappedException of std::runtime_error for the first syntax error.
[[nodiscard]] std::size_t tokenise(Tape& tape, std::size_t maximumDepth);

/// @throws WrappedException of std::runtime_error always, with the text
///         "JSON syntax error (line N): " and what.
[[noreturn]] void throwSyntaxError(const Tape& tape, std::size_t offset, std::string_view what);

/// Whether the character may stand between the tokens of a JSON text.
[[nodiscard]] constexpr bool isBlank(char character) noexcept {
    return character == ' ' || character == '\n' || character == '\r' || character == '\t';
}

} // namespace corvane::utils::json::decoder::detail
