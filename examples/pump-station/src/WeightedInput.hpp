#pragma once

#include "names.hpp"
#include <corvane/workbench/kit/Form.hpp>
#include <corvane/workbench/kit/Row.hpp>
#include <corvane/workbench/model/AttributeReference.hpp>

namespace pump_station {

/// A row in the list of the attributes that a balancer weighs up.
class WeightedInput final : public kit::Row {
    void describe(kit::Form& form) override;

    model::AttributeReference attribute_;
    double weight_ = 1;
};

} // namespace pump_station
