#pragma once

#include <corvane/workbench/skill/Element.hpp>
#include <corvane/workbench/skill/internal/AbstractElementSupervisor.hpp>
#include <corvane/workbench/skill/internal/ElementAccess.hpp>

#include <stdexcept>
#include <string>
#include <string_view>

namespace corvane::tests {

/// Objects of this class are equal in content; only their addresses tell them apart.
class FakeElementClass : public workbench::skill::Element::Class {
public:
    [[nodiscard]] std::string_view id() const override { return "valve"; }
    [[nodiscard]] utils::core::Uuid uuid() const override { return {}; }
    [[nodiscard]] std::wstring displayName() const override { return L"Valve"; }
    [[nodiscard]] std::wstring description() const override { return L"Opens and closes a pipe."; }
    [[nodiscard]] workbench::model::ElementCategory category() const override {
        return workbench::model::ElementCategory::Device;
    }
    [[nodiscard]] const workbench::skill::AbstractElementFactory& factory() const override {
        throw std::logic_error("a fake class makes no elements");
    }
    [[nodiscard]] std::string defaultName() const override { return "valve"; }
};

/// The skill element of a fake element: a class without properties, and an element of that class
/// that is attached to a supervisor of its own.
class FakeSkillElement : public workbench::skill::Element {
public:
    FakeSkillElement(const workbench::model::Element& element, const Class& elementClass)
        : supervisor_(element, elementClass) {
        workbench::skill::internal::ElementAccess::attach(*this, supervisor_);
    }

    void forEachEditableProperty(
        utils::core::function_ref<void(const workbench::skill::EditableProperty&)>) override {}

protected:
    void configureProperties(PropertyConfigurationContext&) override {}

private:
    class Supervisor : public workbench::skill::internal::AbstractElementSupervisor {
    public:
        Supervisor(const workbench::model::Element& element, const Class& elementClass)
            : element_(element), elementClass_(elementClass) {}

        [[nodiscard]] const workbench::model::Element& element() const override { return element_; }
        [[nodiscard]] const Class& elementClass() const override { return elementClass_; }
        void publishElementMembers() override {}

    private:
        const workbench::model::Element& element_;
        const Class& elementClass_;
    };

    Supervisor supervisor_;
};

} // namespace corvane::tests
