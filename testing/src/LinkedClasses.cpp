#include "LinkedClasses.hpp"

#include <corvane/workbench/skill/Skill.hpp>

#include <memory>
#include <stdexcept>
#include <vector>

namespace corvane::workbench::testing {

namespace {

class NoSkill final : public skill::Skill {};

/// A workbench takes element classes from skills alone, and a skill class lives as long as the
/// process. So there is one, which registers what it is given for the moment.
class LinkedClasses final : public skill::Skill::Class {
public:
    [[nodiscard]] std::string_view id() const override { return "SkillTesting"; }
    [[nodiscard]] std::wstring displayName() const override { return L"Skill testing"; }
    [[nodiscard]] std::string_view version() const override { return "1.0.0"; }
    void registerElementClasses(Registry& registry) const override {
        for (const skill::Element::Class& elementClass : elementClasses) {
            registry.registerElementClass(elementClass);
        }
    }
    [[nodiscard]] std::unique_ptr<skill::Skill> createSkill() const override {
        return std::make_unique<NoSkill>();
    }

    std::vector<Bench::ElementClass> elementClasses;
};

} // namespace

void addElementClasses(host::Workbench& workbench,
                       std::initializer_list<Bench::ElementClass> elementClasses) {
    static LinkedClasses linked;
    linked.elementClasses = elementClasses;
    const auto added = workbench.addSkill(linked);
    linked.elementClasses.clear();
    if (!added) {
        throw std::runtime_error(toString(added.error()));
    }
}

} // namespace corvane::workbench::testing
