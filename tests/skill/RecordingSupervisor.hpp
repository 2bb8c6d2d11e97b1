#pragma once

#include <corvane/workbench/skill/internal/AbstractElementSupervisor.hpp>

namespace corvane::tests {

/// A supervisor that hands out what a test gives it and counts the publications it is asked for.
class RecordingSupervisor final : public workbench::skill::internal::AbstractElementSupervisor {
public:
    RecordingSupervisor(const workbench::model::Element& element,
                        const workbench::skill::Element::Class& elementClass)
        : element_(element), elementClass_(elementClass) {}

    const workbench::model::Element& element() const override { return element_; }
    const workbench::skill::Element::Class& elementClass() const override { return elementClass_; }
    void publishElementMembers() override { ++publications; }

    int publications = 0;

private:
    const workbench::model::Element& element_;
    const workbench::skill::Element::Class& elementClass_;
};

} // namespace corvane::tests
