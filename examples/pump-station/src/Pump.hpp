#pragma once

#include "names.hpp"
#include <corvane/workbench/kit/Element.hpp>

#include <string>

namespace pump_station {

/// A pump with its drive. Shows a value that follows from other settings, and an attribute that
/// depends on a setting.
class Pump final : public kit::Element {
    enum class Drive { FixedSpeed, VariableSpeed };

    void describe(kit::Form& form) override;
    [[nodiscard]] bool isVariable() const { return drive_ == Drive::VariableSpeed; }
    [[nodiscard]] std::wstring specificEnergyText() const;

    Drive drive_ = Drive::FixedSpeed;
    double ratedPower_ = 0; // kW
    double ratedFlow_ = 0;  // m³/h
    double minimumSpeed_ = 0;
    double maximumSpeed_ = 0;
};

} // namespace pump_station
