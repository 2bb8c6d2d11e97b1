#pragma once

namespace corvane::workbench::process {

/// How the events of an element are enumerated and looked up.
struct EventSearchOptions {
    /// Attributes count as events, through their change events.
    bool includeAttributes = false;

    /// Passed unchanged to the element's own walk over its events, which alone knows its meaning.
    bool forwardedFlag = false;

    /// Compares field by field.
    friend constexpr bool operator==(const EventSearchOptions&,
                                     const EventSearchOptions&) noexcept = default;
};

} // namespace corvane::workbench::process
