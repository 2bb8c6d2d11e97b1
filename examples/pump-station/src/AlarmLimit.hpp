#pragma once

#include "names.hpp"
#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/kit/Form.hpp>
#include <corvane/workbench/kit/Row.hpp>

#include <string>

namespace pump_station {

/// A row in the list of a measurement's alarm limits.
class AlarmLimit final : public kit::Row {
public:
    /// From the lowest to the highest.
    enum class Kind { LowLow, Low, High, HighHigh };

    [[nodiscard]] std::wstring kindText() const;

    Kind kind = Kind::High;
    double threshold = 0;

private:
    void describe(kit::Form& form) override;
    [[nodiscard]] kit::State thresholdState() const;

    chrono::Duration delay_;
    std::string message_;
};

} // namespace pump_station
