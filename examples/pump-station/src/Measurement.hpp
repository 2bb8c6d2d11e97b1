#pragma once

#include "AlarmLimit.hpp"
#include "names.hpp"
#include <corvane/workbench/kit/Element.hpp>

#include <cstdint>
#include <string>

namespace pump_station {

/// A measured value with its alarm limits. Shows rows, whose changes reach the list they are in, a
/// rule over all rows, and rules of rows that look at the element.
class Measurement final : public kit::Element {
public:
    [[nodiscard]] double rangeLow() const noexcept { return rangeLow_; }
    [[nodiscard]] double rangeHigh() const noexcept { return rangeHigh_; }

private:
    void describe(kit::Form& form) override;
    [[nodiscard]] kit::State limitsState() const;

    std::string unit_;
    std::int64_t channel_ = 0;
    double rangeLow_ = 0;
    double rangeHigh_ = 100;
    kit::Rows<AlarmLimit> alarmLimits_;
};

} // namespace pump_station
