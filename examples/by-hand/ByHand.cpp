#include "MixerClass.hpp"
#include <corvane/workbench/skill/Skill.hpp>

namespace by_hand {

namespace {

class FirstSkill final : public workbench::skill::Skill {};

class FirstSkillClass final : public workbench::skill::Skill::Class {
public:
    std::string_view id() const override { return "FirstSkill"; }
    std::wstring displayName() const override { return L"First skill"; }
    std::string_view version() const override { return "1.0.0"; }
    void registerElementClasses(Registry& registry) const override {
        registry.registerElementClass(mixerClass_);
    }
    std::unique_ptr<workbench::skill::Skill> createSkill() const override {
        return std::make_unique<FirstSkill>();
    }

private:
    MixerClass mixerClass_;
};

const FirstSkillClass kFirstSkill;

} // namespace

} // namespace by_hand
