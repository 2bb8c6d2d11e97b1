#pragma once

namespace pump_station {

/// The values that a measurement can take.
struct MeasuringRange {
    double low = 0;
    double high = 100;

    [[nodiscard]] bool contains(double value) const noexcept {
        return value >= low && value <= high;
    }
};

} // namespace pump_station
