#include "Pump.hpp"

#include <corvane/workbench/kit/translate.hpp>

#include <cmath>

namespace pump_station {

using model::Attribute;

void Pump::describe(kit::Form& form) {
    form.choice("drive", "Drive", drive_, {"fixed speed", "variable speed"});
    form.number("ratedPower", "Rated power", ratedPower_)
        .unit("kW")
        .initially(7.5)
        .rule([](double power) { return power > 0; }, "The rated power must be greater than 0 kW.");
    form.number("ratedFlow", "Rated flow", ratedFlow_)
        .unit("m³/h")
        .initially(50)
        .rule([](double flow) { return flow > 0; }, "The rated flow must be greater than 0 m³/h.");
    form.derived("specificEnergy", "Specific energy", [this] { return specificEnergyText(); })
        .unit("kWh/m³")
        .follows(ratedPower_, ratedFlow_);
    form.number("minimumSpeed", "Minimum speed", minimumSpeed_)
        .unit("1/min")
        .initially(600)
        .rule([](double speed) { return speed >= 0; }, "The minimum speed must not be negative.")
        .visibleIf([this] { return isVariable(); }, drive_)
        .savedWhenVisible();
    form.number("maximumSpeed", "Maximum speed", maximumSpeed_)
        .unit("1/min")
        .initially(1450)
        .rule([this] { return maximumSpeed_ > minimumSpeed_; },
              "The maximum speed must lie above the minimum speed.", minimumSpeed_)
        .visibleIf([this] { return isVariable(); }, drive_)
        .savedWhenVisible();

    form.attribute(Attribute::kDeviceState);
    form.attribute("power", Attribute::Access::ReadOnly, kDouble);
    // A name with a dot is written in brackets, which keep it one component of a key.
    form.attribute("[vibration.x]", Attribute::Access::ReadOnly, kDouble);
    form.attribute("[vibration.y]", Attribute::Access::ReadOnly, kDouble);
    form.attribute("speed", Attribute::Access::ReadWrite, kDouble)
        .onlyIf([this] { return isVariable(); }, drive_);
    form.event("started");
    form.event("stopped");
    form.event("tripped");
    form.task("start");
    form.task("stop");
}

std::wstring Pump::specificEnergyText() const {
    if (ratedFlow_ <= 0) {
        return kit::text("unknown");
    }
    return kit::valueText(std::round(ratedPower_ / ratedFlow_ * 1000) / 1000);
}

} // namespace pump_station
