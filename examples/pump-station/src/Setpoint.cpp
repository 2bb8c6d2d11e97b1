#include "Setpoint.hpp"

#include <corvane/workbench/kit/translate.hpp>

namespace pump_station {

using model::Attribute;

void Setpoint::describe(kit::Form& form) {
    form.text("unit", "Unit", unit_).initially("m").required("Enter the unit of the wanted value.");
    form.number("rangeLow", "Lowest value", rangeLow_).initially(0);
    form.number("rangeHigh", "Highest value", rangeHigh_)
        .initially(10)
        .rule([this] { return rangeHigh_ > rangeLow_; },
              "The highest value must lie above the lowest.", rangeLow_);
    form.choice("mode", "Mode", mode_, {"fixed", "follow"});
    form.number("value", "Value", value_)
        .rule([this] { return valueState(); }, rangeLow_, rangeHigh_)
        .visibleIf([this] { return mode_ == Mode::Fixed; }, mode_);
    form.reference("event", "Event to follow", event_)
        .visibleIf([this] { return mode_ == Mode::Follow; }, mode_)
        .savedWhenNotInitial();

    form.attribute("value", Attribute::Access::ReadWrite, kDouble);
    form.attribute(Attribute::kWriteTime);
    form.event(process::Event::kChanged);
}

kit::State Setpoint::valueState() const {
    if (value_ >= rangeLow_ && value_ <= rangeHigh_) {
        return {};
    }
    return kit::error("The value must lie between {} and {}.", rangeLow_, rangeHigh_);
}

} // namespace pump_station
