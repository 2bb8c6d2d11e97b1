#pragma once

// Lists the invalid properties of elements.

#include <corvane/utils/core/function_ref.hpp>
#include <corvane/workbench/host/PropertyProblem.hpp>

namespace corvane::workbench::host {

/// Calls the callback with each invalid visible property at or below the element, in the order of
/// the tree. Configures the elements.
void forEachPropertyProblem(const ElementNode& top,
                            utils::core::function_ref<void(const PropertyProblem&)> callback);

} // namespace corvane::workbench::host
