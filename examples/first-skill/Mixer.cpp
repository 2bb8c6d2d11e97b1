#include "Mixer.hpp"

#include <corvane/workbench/kit/translate.hpp>

namespace first_skill {

void Mixer::describe(kit::Form& form) {
    form.integer("topSpeed", "Top speed", topSpeed_)
        .initially(1500)
        .range(1, 3000, "The top speed must lie between 1 and 3000.");
    form.reference("leader", "Follows", leader_).optional().savedWhenNotInitial();
    form.integer("share", "Share", share_)
        .unit("%")
        .initially(100)
        .rule([this] { return share_ > 0; }, "The share must be greater than 0 %.")
        .visibleIf([this] { return bool(leader_); }, leader_)
        .savedWhenVisible();
    form.rows("steps", "Steps", steps_)
        .rule([this] { return stepsState(); }, topSpeed_)
        .proposes(&Step::speed, 100)
        .savedWhenNotInitial();

    form.attribute("speed", model::Attribute::Access::ReadOnly,
                   corvane::workbench::data::DataType::kAny);
}

kit::State Mixer::stepsState() const {
    for (const Step& step : steps_) {
        if (step.speed > topSpeed_) {
            return kit::error("No step may be faster than the top speed.");
        }
    }
    return {};
}

} // namespace first_skill
