#include "MixerSkill.hpp"

#include <corvane/workbench/kit/Rows.hpp>
#include <corvane/workbench/kit/Skill.hpp>
#include <corvane/workbench/kit/translate.hpp>

namespace corvane::tests {

namespace data = workbench::data;
namespace kit = workbench::kit;
namespace model = workbench::model;

using namespace kit::literals;

namespace {

constexpr data::DataType kNumber{2, 8};

class Step final : public kit::Row {
public:
    std::int64_t speed = 100;

private:
    void describe(kit::Form& form) override {
        form.text("ingredient", "Ingredient", ingredient_).required("Name the ingredient.");
        form.integer("speed", "Speed", speed)
            .initially(100)
            .rule([](std::int64_t value) { return value > 0; },
                  "The speed must be greater than 0.");
        form.displayName([this] { return kit::valueText(ingredient_); }).follows(ingredient_);
    }

    std::string ingredient_;
};

} // namespace

class Mixer final : public kit::Element {
    enum class Drive { Fixed, Variable };

    void describe(kit::Form& form) override {
        form.choice("drive", "Drive", drive_, {"fixed", "variable"});
        form.integer("topSpeed", "Top speed", topSpeed_)
            .initially(1500)
            .range(1, 3000, "The top speed must lie between 1 and 3000.")
            .visibleIf([this] { return drive_ == Drive::Variable; }, drive_);
        form.derived("summary", "Summary", [this] { return kit::text("{} steps", steps_.size()); })
            .follows(steps_);
        form.reference("leader", "Follows", leader_).optional();
        form.rows("steps", "Steps", steps_);
        form.attribute("speed", model::Attribute::Access::ReadOnly, kNumber);
        form.event("stopped");
        form.task("stop");
    }

    Drive drive_ = Drive::Fixed;
    std::int64_t topSpeed_ = 0;
    model::AttributeReference leader_;
    kit::Rows<Step> steps_;
};

const kit::ElementClass<Mixer> kMixer({
    .id = "Test.Mixer",
    .uuid = "7a1f0f0e-4f0b-4c59-9d0b-7d5a3a2f6c01"_uuid,
    .displayName = "Mixer",
    .description = "Works through the steps of a recipe.",
    .category = model::ElementCategory::ElementGroup,
    .children = {model::ElementCategory::ElementGroup},
});

namespace {

const kit::Skill kSkill({.id = "Test", .displayName = "Test", .version = "1.0.0"}, {kMixer});

} // namespace

} // namespace corvane::tests
