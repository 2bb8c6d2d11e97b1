#pragma once

#include "names.hpp"
#include <corvane/utils/core/Uuid.hpp>
#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/json/Object.hpp>
#include <corvane/workbench/kit/Element.hpp>

#include <cstdint>
#include <string>

namespace pump_station {

/// A controller on the network, with its pumps, valves and data points. Shows visibility that
/// depends on a choice, a rule that compares two settings, durations, a time stamp and a UUID.
class Controller final : public kit::Element {
    enum class Security { None, Certificate };

    void describe(kit::Form& form) override;

    std::string address_;
    std::int64_t port_ = 0;
    Security security_ = Security::None;
    std::string certificate_;
    chrono::Duration pollInterval_;
    chrono::Duration reconnectDelay_;
    std::string commissioned_; // empty: not yet
    corvane::utils::core::Uuid assetId_;
    /// What the controller's driver needs; this skill keeps it without knowing its meaning.
    corvane::workbench::json::Object settings_;
};

} // namespace pump_station
