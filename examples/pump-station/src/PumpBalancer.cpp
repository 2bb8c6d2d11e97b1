#include "PumpBalancer.hpp"

#include "elementClasses.hpp"

namespace pump_station {

using model::Attribute;

void PumpBalancer::describe(kit::Form& form) {
    form.reference("pump", "Pump", pump_).to(kPump, "The element “{}” is not a pump.");
    form.number("gain", "Gain", gain_)
        .initially(1)
        .rule([](double gain) { return gain > 0; }, "The gain must be greater than 0.");
    form.rows("inputs", "Inputs", inputs_).required("Add an attribute to weigh up.");

    form.attribute("output", Attribute::Access::ReadOnly, kDouble);
    form.task("rebalance");
}

} // namespace pump_station
