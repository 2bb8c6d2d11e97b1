#pragma once

#include "names.hpp"
#include <corvane/workbench/kit/Element.hpp>

#include <string>

namespace pump_station {

/// An element that only holds others: an area of the station, or a group of measurements. Two
/// element classes share it. The smallest complete element: read this one first.
class Group final : public kit::Element {
    void describe(kit::Form& form) override;

    std::string description_;
};

} // namespace pump_station
