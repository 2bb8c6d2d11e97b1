#include "SamplingTimer.hpp"

#include <corvane/workbench/kit/seconds.hpp>

namespace pump_station {

using chrono::Duration;

void SamplingTimer::describe(kit::Form& form) {
    form.duration("interval", "Interval", interval_)
        .acceptsMicroseconds()
        .initially(Duration(1, Duration::Units::Seconds))
        .rule([](const Duration& interval) { return kit::seconds(interval) >= 0.001; },
              "The interval must not be shorter than 1ms.");
    form.rows("tasks", "Tasks", tasks_).required("Add a task that the timer is to trigger.");

    form.event("elapsed", {});
}

} // namespace pump_station
