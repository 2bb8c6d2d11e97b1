#include "Mixer.hpp"
#include "names.hpp"
#include <corvane/workbench/kit/ElementClass.hpp>
#include <corvane/workbench/kit/Skill.hpp>

namespace first_skill {

using namespace kit::literals;

namespace {

const kit::ElementClass<Mixer> kMixer({
    .id = "FirstSkill.Mixer",
    .uuid = "5f0c2a8e-93b7-4d8e-a1c4-2f6d0b9e7713"_uuid,
    .displayName = "Mixer",
    .description = "Works through the steps of a recipe.",
    .category = model::ElementCategory::Device,
});

const kit::Skill kFirstSkill({.id = "FirstSkill", .displayName = "First skill", .version = "1.0.0"},
                             {kMixer});

} // namespace

} // namespace first_skill
