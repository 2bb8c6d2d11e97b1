#include "linkedSkill.hpp"

namespace corvane::tests {

std::string_view linkedSkillId() {
    return BOUNDARY_SKILL_ID;
}

} // namespace corvane::tests
