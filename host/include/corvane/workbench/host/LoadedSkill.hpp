#pragma once

// A skill that a workbench uses: its class, its instance, and where it came from.

#include <corvane/workbench/skill/Element.hpp>
#include <corvane/workbench/skill/Skill.hpp>

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

namespace corvane::workbench::host {

/// A skill that a workbench uses: its class, its instance, and where it came from. Owned by the
/// workbench, alive as long as it.
class LoadedSkill {
public:
    LoadedSkill(const skill::Skill::Class& skillClass, std::unique_ptr<skill::Skill> instance,
                std::vector<std::reference_wrapper<const skill::Element::Class>> elementClasses,
                std::filesystem::path library);

    [[nodiscard]] const skill::Skill::Class& skillClass() const noexcept { return _skillClass; }
    [[nodiscard]] skill::Skill& instance() const noexcept { return *_instance; }
    /// In the order in which the skill registered them.
    [[nodiscard]] const std::vector<std::reference_wrapper<const skill::Element::Class>>&
    elementClasses() const noexcept {
        return _elementClasses;
    }
    /// The library that holds the skill; empty for one that is linked into the program.
    [[nodiscard]] const std::filesystem::path& library() const noexcept { return _library; }

private:
    const skill::Skill::Class& _skillClass;
    std::unique_ptr<skill::Skill> _instance;
    std::vector<std::reference_wrapper<const skill::Element::Class>> _elementClasses;
    std::filesystem::path _library;
};

} // namespace corvane::workbench::host
