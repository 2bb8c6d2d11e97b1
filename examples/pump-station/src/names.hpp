#pragma once

// What the files of this skill call the libraries, and types that they share.

#include <corvane/workbench/data/DataType.hpp>

namespace corvane::utils::core {}
namespace corvane::workbench::chrono {}
namespace corvane::workbench::data {}
namespace corvane::workbench::kit {}
namespace corvane::workbench::model {}
namespace corvane::workbench::process {}

namespace pump_station {

namespace chrono = corvane::workbench::chrono;
namespace data = corvane::workbench::data;
namespace kit = corvane::workbench::kit;
namespace model = corvane::workbench::model;
namespace process = corvane::workbench::process;

/// A floating-point number, in the data model of the runtime.
inline constexpr data::DataType kDouble{2, 8};

} // namespace pump_station
