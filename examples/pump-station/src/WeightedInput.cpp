#include "WeightedInput.hpp"

#include <corvane/workbench/kit/translate.hpp>

namespace pump_station {

void WeightedInput::describe(kit::Form& form) {
    form.reference("attribute", "Attribute", attribute_);
    form.number("weight", "Weight", weight_)
        .initially(1)
        .rule([](double weight) { return weight > 0 && weight <= 100; },
              "The weight must be greater than 0 and at most 100.");
    form.displayName([this] {
            return kit::text("{} × {}", weight_,
                             attribute_ ? kit::valueText(attribute_.primaryKey())
                                        : kit::text("no attribute"));
        })
        .follows(attribute_, weight_);
}

} // namespace pump_station
