#include <corvane/workbench/host/LoadedSkill.hpp>

#include <utility>

namespace corvane::workbench::host {

LoadedSkill::LoadedSkill(
    const skill::Skill::Class& skillClass, std::unique_ptr<skill::Skill> instance,
    std::vector<std::reference_wrapper<const skill::Element::Class>> elementClasses,
    std::filesystem::path library)
    : _skillClass(skillClass), _instance(std::move(instance)),
      _elementClasses(std::move(elementClasses)), _library(std::move(library)) {}

} // namespace corvane::workbench::host
