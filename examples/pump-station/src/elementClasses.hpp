#pragma once

// The element classes to which others refer.

#include "Pump.hpp"
#include "names.hpp"
#include <corvane/workbench/kit/ElementClass.hpp>

namespace pump_station {

extern const kit::ElementClass<Pump> kPump;

} // namespace pump_station
