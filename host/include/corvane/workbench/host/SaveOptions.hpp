#pragma once

namespace corvane::workbench::host {

/// How a configuration is saved.
struct SaveOptions {
    /// Let the skills load what they have saved before anything of it is written: each element for
    /// itself, with its ancestors alone around it. References are not resolved, properties not
    /// configured, and nothing stays of what was loaded. A skill that writes what it does not read
    /// is a problem then.
    bool loadAgain = false;
};

} // namespace corvane::workbench::host
