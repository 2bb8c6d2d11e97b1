#include <corvane/workbench/process/Task.hpp>

#include <utility>

namespace corvane::workbench::process {

const Task Task::kReconnect("reconnect");

Task::Task(std::string&& name) noexcept : name_(std::move(name)) {}

Task::Task(const Task& other) = default;
Task::Task(Task&& other) noexcept = default;
Task& Task::operator=(const Task& other) = default;
Task& Task::operator=(Task&& other) noexcept = default;
Task::~Task() = default;

std::string_view Task::name() const noexcept {
    return name_;
}

} // namespace corvane::workbench::process
