#pragma once

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
    /// Takes the instance over; the classes are referred to.
    LoadedSkill(const skill::Skill::Class& skillClass, std::unique_ptr<skill::Skill> instance,
                std::vector<std::reference_wrapper<const skill::Element::Class>> elementClasses,
                std::filesystem::path library);

    /// The object that registered the skill; it belongs to the skill's library.
    [[nodiscard]] const skill::Skill::Class& skillClass() const noexcept { return skillClass_; }
    /// The running instance.
    [[nodiscard]] skill::Skill& instance() const noexcept { return *instance_; }
    /// In the order in which the skill registered them.
    [[nodiscard]] const std::vector<std::reference_wrapper<const skill::Element::Class>>&
    elementClasses() const noexcept {
        return elementClasses_;
    }
    /// The library that holds the skill; empty for one that is linked into the program.
    [[nodiscard]] const std::filesystem::path& library() const noexcept { return library_; }

private:
    const skill::Skill::Class& skillClass_;
    std::unique_ptr<skill::Skill> instance_;
    std::vector<std::reference_wrapper<const skill::Element::Class>> elementClasses_;
    std::filesystem::path library_;
};

} // namespace corvane::workbench::host
