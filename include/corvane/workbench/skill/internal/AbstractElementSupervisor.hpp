#pragma once

#include <corvane/workbench/export.hpp>
#include <corvane/workbench/skill/Element.hpp>

namespace corvane::workbench::skill::internal {

/// Joins a skill element to the workbench's element. The workbench implements it, one object per
/// element, and keeps it alive for as long as the skill element is used.
///
/// The order of the virtual operations is fixed.
class CORVANE_WORKBENCH_EXPORT AbstractElementSupervisor {
public:
    AbstractElementSupervisor();
    AbstractElementSupervisor(const AbstractElementSupervisor& other);
    AbstractElementSupervisor& operator=(const AbstractElementSupervisor& other);
    virtual ~AbstractElementSupervisor() = 0;

    /// The workbench's element.
    [[nodiscard]] virtual const model::Element& element() const = 0;
    /// The element's class: the very object that the skill registered.
    [[nodiscard]] virtual const Element::Class& elementClass() const = 0;
    /// The element's attributes, events or tasks have changed and must be enumerated anew.
    virtual void publishElementMembers() = 0;
};

} // namespace corvane::workbench::skill::internal
