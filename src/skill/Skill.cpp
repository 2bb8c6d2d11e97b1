#include <corvane/workbench/skill/Skill.hpp>

namespace corvane::workbench::skill {

// Skill classes in other libraries register during static initialisation, before or after this
// library's own; the list therefore has no initialiser that runs.
constinit utils::memory::SafeGlobal<std::forward_list<std::reference_wrapper<Skill::Class>>>
    Skill::Class::_allSkills;

Skill::Skill() = default;
Skill::~Skill() = default;

Skill::Class::Class() {
    _allSkills.get().emplace_front(*this);
}
Skill::Class::~Class() = default;

const std::forward_list<std::reference_wrapper<Skill::Class>>& Skill::Class::allSkills() {
    return _allSkills.get();
}

Skill::Class::Registry::Registry() = default;
Skill::Class::Registry::~Registry() = default;

} // namespace corvane::workbench::skill
