#include <corvane/workbench/host/LoadedSkill.hpp>

#include <utility>

namespace corvane::workbench::host {

LoadedSkill::LoadedSkill(
    const skill::Skill::Class& skillClass, std::unique_ptr<skill::Skill> instance,
    std::vector<std::reference_wrapper<const skill::Element::Class>> elementClasses,
    std::filesystem::path library)
    : skillClass_(skillClass), instance_(std::move(instance)),
      elementClasses_(std::move(elementClasses)), library_(std::move(library)) {}

} // namespace corvane::workbench::host
