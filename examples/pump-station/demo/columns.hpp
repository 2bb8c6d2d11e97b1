#pragma once

// Texts that stand below each other.

#include <cstddef>
#include <cstdint>
#include <string>

namespace pump_station::demo {

/// The text (UTF-8), filled up with blanks to a number of characters and one more.
[[nodiscard]] std::string padded(std::string text, std::size_t width);

/// "no errors", "1 error", "2 errors".
[[nodiscard]] std::string errorCountText(std::uint64_t count);

} // namespace pump_station::demo
