#pragma once

#include <corvane/workbench/chrono/Duration.hpp>

#include <chrono>

namespace corvane::workbench::kit {

/// A time span as a number of seconds, to compare and to calculate with.
[[nodiscard]] inline double seconds(const chrono::Duration& duration) {
    return duration.to<std::chrono::duration<double>>().count();
}

} // namespace corvane::workbench::kit
