#pragma once

#include <corvane/workbench/skill/Element.hpp>
#include <corvane/workbench/skill/Skill.hpp>

#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
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
    LoadedSkill(const LoadedSkill&) = delete;
    LoadedSkill& operator=(const LoadedSkill&) = delete;
    ~LoadedSkill();

    /// The object that registered the skill; it belongs to the skill's library.
    [[nodiscard]] const skill::Skill::Class& skillClass() const noexcept { return skillClass_; }
    /// The id of the class, as it was when the skill was loaded.
    [[nodiscard]] const std::string& id() const noexcept { return id_; }
    /// The running instance.
    [[nodiscard]] skill::Skill& instance() const noexcept { return *instance_; }
    /// In the order in which the skill registered them.
    [[nodiscard]] const std::vector<std::reference_wrapper<const skill::Element::Class>>&
    elementClasses() const noexcept {
        return elementClasses_;
    }
    /// The library that holds the skill; empty for one that is linked into the program.
    [[nodiscard]] const std::filesystem::path& library() const noexcept { return library_; }

    /// The id of the skill that has registered the class, in whatever workbench; empty when there
    /// is none. May be called in the handler of a signal, while no other thread ends a workbench.
    [[nodiscard]] static std::string_view
    idOfSkillWith(const skill::Element::Class& elementClass) noexcept;
    /// The same for the id of a class.
    [[nodiscard]] static std::string_view idOfSkillWith(std::string_view elementClassId) noexcept;

private:
    const skill::Skill::Class& skillClass_;
    std::unique_ptr<skill::Skill> instance_;
    std::vector<std::reference_wrapper<const skill::Element::Class>> elementClasses_;
    std::filesystem::path library_;
    /// Both copied: a signal handler asks nobody.
    std::string id_;
    std::vector<std::string> elementClassIds_;
    std::atomic<LoadedSkill*> next_;
};

} // namespace corvane::workbench::host
