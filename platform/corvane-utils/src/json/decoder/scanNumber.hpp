#pragma once

// A number at a place of a JSON text.

#include <corvane/utils/json/decoder/detail/Tape.hpp>

#include <cstdint>

namespace corvane::utils::json::decoder::detail {

struct ScannedNumber {
    enum class Outcome : std::uint8_t {
        Number,
        Unexpected, ///< what stands at the end does not belong to a number
        OutOfRange, ///< a double cannot hold the number
    };

    /// Behind what was read.
    const char* end;
    std::uint64_t bits = 0;
    TokenKind kind = TokenKind::Double;
    Outcome outcome = Outcome::Unexpected;
};

/// Reads as much from the beginning of a text as belongs to a number. An integer is signed if it
/// fits, else unsigned if that fits, else a double. "-0" is a double, which keeps its sign.
[[nodiscard]] ScannedNumber scanNumber(const char* begin, const char* textEnd) noexcept;

} // namespace corvane::utils::json::decoder::detail
