// A skill with one element class.
#include <corvane/workbench/kit/Element.hpp>
#include <corvane/workbench/kit/ElementClass.hpp>
#include <corvane/workbench/kit/Skill.hpp>

namespace {

namespace kit = corvane::workbench::kit;
using namespace kit::literals;

class Tank final : public kit::Element {
    void describe(kit::Form& form) override {
        form.number("volume", "Volume", volume_)
            .unit("m³")
            .initially(5)
            .rule([](double volume) { return volume > 0; },
                  "The volume must be greater than 0 m³.");
    }

    double volume_ = 0;
};

const kit::ElementClass<Tank> kTank({
    .id = "Tank.Tank",
    .uuid = "3d4a1f6e-58c1-4f0e-8a53-2c9f7f1b6d10"_uuid,
    .displayName = "Tank",
    .description = "Holds a liquid.",
    .category = corvane::workbench::model::ElementCategory::Device,
});

const kit::Skill kSkill({.id = "Tank", .displayName = "Tank", .version = "1.0.0"}, {kTank});

} // namespace
