#pragma once

#include <corvane/workbench/bindings/PropertyHandle.hpp>

#include <string_view>

namespace pump_station {

/// What the descriptions of all properties have in common.
struct Label {
    /// As in configuration files.
    std::string_view name;
    /// As shown to the user, before translation.
    std::string_view displayName;
    corvane::workbench::bindings::PropertyHandle property;
};

} // namespace pump_station
