#pragma once

// The types of the runtime's data model that this skill's attributes have, beside the named ones.

#include <corvane/workbench/data/DataType.hpp>

namespace pump_station {

inline constexpr corvane::workbench::data::DataType kDouble{2, 8};

} // namespace pump_station
