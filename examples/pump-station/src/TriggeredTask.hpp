#pragma once

#include "names.hpp"
#include <corvane/workbench/kit/Form.hpp>
#include <corvane/workbench/kit/Row.hpp>
#include <corvane/workbench/process/TaskReference.hpp>

namespace pump_station {

/// A row in the list of the tasks that a timer triggers. In files it is the task's key alone.
class TriggeredTask final : public kit::Row {
    void describe(kit::Form& form) override;

    process::TaskReference task_;
};

} // namespace pump_station
