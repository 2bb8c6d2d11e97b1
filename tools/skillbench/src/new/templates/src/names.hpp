#pragma once

// What the files of this skill call the library.

namespace corvane::workbench::data {}
namespace corvane::workbench::kit {}
namespace corvane::workbench::model {}

namespace @NAMESPACE@ {

namespace data = corvane::workbench::data;
namespace kit = corvane::workbench::kit;
namespace model = corvane::workbench::model;

} // namespace @NAMESPACE@
