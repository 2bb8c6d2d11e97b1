#pragma once

#include "names.hpp"
#include <corvane/workbench/kit/Element.hpp>
#include <corvane/workbench/process/EventReference.hpp>

#include <string>

namespace pump_station {

/// A wanted value. It is fixed, or follows an event: shows a reference to an event, which is
/// there only while it is needed.
class Setpoint final : public kit::Element {
    enum class Mode { Fixed, Follow };

    void describe(kit::Form& form) override;
    [[nodiscard]] kit::State valueState() const;

    std::string unit_;
    double rangeLow_ = 0;
    double rangeHigh_ = 100;
    double value_ = 0;
    Mode mode_ = Mode::Fixed;
    // The value of an attribute may change without an event of its own.
    process::EventReference event_{{.includeAttributes = true}};
};

} // namespace pump_station
