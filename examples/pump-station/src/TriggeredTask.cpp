#include "TriggeredTask.hpp"

#include <corvane/workbench/kit/translate.hpp>

namespace pump_station {

void TriggeredTask::describe(kit::Form& form) {
    form.writtenAsValue();
    form.reference("task", "Task", task_);
    form.displayName(
            [this] { return task_ ? kit::valueText(task_.primaryKey()) : kit::text("no task"); })
        .follows(task_);
}

} // namespace pump_station
