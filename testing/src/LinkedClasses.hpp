#pragma once

#include <corvane/workbench/testing/Bench.hpp>

#include <initializer_list>

namespace corvane::workbench::testing {

/// Makes element classes known to a workbench without a skill of their own. Throws
/// std::runtime_error when the workbench does not take them.
void addElementClasses(host::Workbench& workbench,
                       std::initializer_list<Bench::ElementClass> elementClasses);

} // namespace corvane::workbench::testing
