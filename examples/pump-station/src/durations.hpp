#pragma once

// Durations in rules and in editors.

#include <optional>
#include <string>
#include <string_view>

namespace corvane::workbench::chrono {
class Duration;
}

namespace pump_station {

/// The length in seconds, to compare durations of different units.
[[nodiscard]] double seconds(const corvane::workbench::chrono::Duration& duration);

/// As in configuration files, "250ms".
[[nodiscard]] std::wstring durationText(const corvane::workbench::chrono::Duration& duration);
/// Nothing when the text is no duration.
[[nodiscard]] std::optional<corvane::workbench::chrono::Duration>
parseDuration(std::wstring_view text);

} // namespace pump_station
