#include "@CLASS@.hpp"
#include "names.hpp"
#include <corvane/workbench/kit/ElementClass.hpp>
#include <corvane/workbench/kit/Skill.hpp>

namespace @NAMESPACE@ {

using namespace kit::literals;

namespace {

const kit::ElementClass<@CLASS@> kClass({
    .id = "@ID@.@CLASS@",
    .uuid = "@UUID@"_uuid,
    .displayName = "@CLASS@",
    .description = "Say here what the element is for.",
    .category = model::ElementCategory::Device,
});

const kit::Skill kSkill({.id = "@ID@", .displayName = "@ID@", .version = "0.1.0"}, {kClass});

} // namespace

} // namespace @NAMESPACE@
