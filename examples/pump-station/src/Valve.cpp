#include "Valve.hpp"

#include <corvane/workbench/kit/seconds.hpp>

namespace pump_station {

using chrono::Duration;
using model::Attribute;

void Valve::describe(kit::Form& form) {
    form.choice("kind", "Kind", kind_, {"shut-off", "control"});
    form.duration("travelTime", "Travel time", travelTime_)
        .initially(Duration(30, Duration::Units::Seconds))
        .rule([](const Duration& time) { return kit::seconds(time) > 0; },
              "The travel time must be longer than 0.");
    form.choice("failPosition", "Position on failure", failPosition_, {"open", "closed", "hold"})
        .initially(FailPosition::Hold);
    form.number("minimumOpening", "Minimum opening", minimumOpening_)
        .unit("%")
        .rule([](double opening) { return opening >= 0 && opening < 100; },
              "The minimum opening must be at least 0 and less than 100 %.")
        .visibleIf([this] { return kind_ == Kind::Control; }, kind_)
        .savedWhenVisible();

    form.attribute(Attribute::kDeviceState);
    form.attribute("position", Attribute::Access::ReadOnly, kDouble);
    form.event("opened");
    form.event("closed");
    form.task("open");
    form.task("close");
}

} // namespace pump_station
