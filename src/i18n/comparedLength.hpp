#pragma once

// The systems' comparisons take lengths as signed 32-bit numbers.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace corvane::workbench::i18n {

/// How many code units of a text of that length take part in a comparison.
[[nodiscard]] constexpr std::int32_t comparedLength(std::size_t length) noexcept {
    constexpr std::size_t kMost = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::min(length, kMost));
}

} // namespace corvane::workbench::i18n
