#pragma once

// What the decoder says about a text that is no JSON.

#include <corvane/utils/json/decoder/detail/Tape.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace corvane::utils::json::decoder::detail {

/// @throws WrappedException of std::runtime_error always, with the text
///         "JSON syntax error (line N): " and what.
[[noreturn]] void throwSyntaxError(const Tape& tape, std::size_t offset, std::string_view what);

/// Says what stands at the beginning of the rest of a text, where something else should.
[[nodiscard]] std::string describeUnexpected(std::string_view rest);

} // namespace corvane::utils::json::decoder::detail
