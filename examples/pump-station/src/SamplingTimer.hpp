#pragma once

#include "TriggeredTask.hpp"
#include "names.hpp"
#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/kit/Element.hpp>

namespace pump_station {

/// A timer that triggers tasks at a regular interval. Shows a list of references.
class SamplingTimer final : public kit::Element {
    void describe(kit::Form& form) override;

    chrono::Duration interval_;
    kit::Rows<TriggeredTask> tasks_;
};

} // namespace pump_station
