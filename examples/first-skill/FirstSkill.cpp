#include "Mixer.hpp"
#include "names.hpp"
#include <corvane/workbench/kit/ElementClass.hpp>
#include <corvane/workbench/kit/Skill.hpp>

namespace first_skill {

using namespace kit::literals;

namespace {

const kit::ElementClass<Mixer> kMixer({
    .id = "FirstSkill.Mixer",
    .uuid = "6f0d6f0e-6f5a-4c2b-9d43-6b1f3f1f7a01"_uuid,
    .displayName = "Mixer",
    .description = "Works through the steps of a recipe.",
    .category = model::ElementCategory::Device,
});

const kit::Skill kFirstSkill({.id = "FirstSkill", .displayName = "First skill", .version = "1.0.0"},
                             {kMixer});

} // namespace

} // namespace first_skill
