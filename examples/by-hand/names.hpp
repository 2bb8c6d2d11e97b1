#pragma once

// Short names for the namespaces of the library that this skill uses.

namespace corvane::workbench {}
namespace corvane::utils {}

namespace by_hand {

namespace workbench = corvane::workbench;
namespace utils = corvane::utils;

} // namespace by_hand
