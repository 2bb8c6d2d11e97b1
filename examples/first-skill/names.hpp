#pragma once

// What the files of this skill call the library.

namespace corvane::workbench::kit {}
namespace corvane::workbench::model {}

namespace first_skill {

namespace kit = corvane::workbench::kit;
namespace model = corvane::workbench::model;

} // namespace first_skill
