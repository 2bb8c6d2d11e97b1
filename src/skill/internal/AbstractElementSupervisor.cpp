#include <corvane/workbench/skill/internal/AbstractElementSupervisor.hpp>

namespace corvane::workbench::skill::internal {

AbstractElementSupervisor::AbstractElementSupervisor() = default;
AbstractElementSupervisor::AbstractElementSupervisor(const AbstractElementSupervisor&) {}
AbstractElementSupervisor& AbstractElementSupervisor::operator=(const AbstractElementSupervisor&) {
    return *this;
}
AbstractElementSupervisor::~AbstractElementSupervisor() = default;

} // namespace corvane::workbench::skill::internal
