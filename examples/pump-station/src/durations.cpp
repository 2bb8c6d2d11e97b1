#include "durations.hpp"

#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/chrono/Duration.hpp>

#include <chrono>

namespace pump_station {

using corvane::workbench::chrono::Duration;

double seconds(const Duration& duration) {
    return duration.to<std::chrono::duration<double>>().count();
}

std::wstring durationText(const Duration& duration) {
    return corvane::utils::string::toWide(duration.toString());
}

std::optional<Duration> parseDuration(std::wstring_view text) {
    return Duration::parse(corvane::utils::string::toUtf8(text));
}

} // namespace pump_station
