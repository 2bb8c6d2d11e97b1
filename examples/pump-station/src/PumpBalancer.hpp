#pragma once

#include "WeightedInput.hpp"
#include "names.hpp"
#include <corvane/workbench/kit/Element.hpp>
#include <corvane/workbench/model/ElementReference.hpp>

namespace pump_station {

/// A microservice that sets the speed of a pump from weighted attributes. Shows a reference to an
/// element of one class, and a list whose rows hold references.
class PumpBalancer final : public kit::Element {
    void describe(kit::Form& form) override;

    model::ElementReference pump_;
    double gain_ = 1;
    kit::Rows<WeightedInput> inputs_;
};

} // namespace pump_station
