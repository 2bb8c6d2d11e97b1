// The list before any skill class exists. A program of its own: nothing else here may construct
// a skill class, nor may anything ask for the list before the test does.
#include <corvane/workbench/skill/Skill.hpp>

#include <gtest/gtest.h>

namespace {

using corvane::workbench::skill::Skill;

TEST(SkillClass, TheListIsEmptyBeforeAnySkillClassExists) {
    const auto& skills = Skill::Class::allSkills();
    EXPECT_TRUE(skills.empty());
    EXPECT_EQ(&Skill::Class::allSkills(), &skills);
}

} // namespace
