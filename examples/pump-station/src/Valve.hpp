#pragma once

#include "names.hpp"
#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/kit/Element.hpp>

namespace pump_station {

/// A valve that shuts a pipe or controls its flow.
class Valve final : public kit::Element {
    enum class Kind { ShutOff, Control };
    enum class FailPosition { Open, Closed, Hold };

    void describe(kit::Form& form) override;

    Kind kind_ = Kind::ShutOff;
    chrono::Duration travelTime_;
    FailPosition failPosition_ = FailPosition::Hold;
    double minimumOpening_ = 0; // percent
};

} // namespace pump_station
