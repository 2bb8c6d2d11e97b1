#pragma once

#include <corvane/workbench/host/Problem.hpp>

#include <vector>

namespace corvane::workbench::host {

/// What came of loading a configuration. True when the configuration was loaded.
struct LoadResult {
    /// Whether the configuration is now the one in memory. When not, the one before it is still
    /// there, unchanged. A configuration can be loaded and have problems: references that do not
    /// resolve, warnings, and, with LoadOptions::keepGoing, parts that were left out.
    bool loaded = false;
    /// In the order of the file.
    std::vector<Problem> problems;

    /// Whether the configuration was loaded, with or without problems.
    explicit operator bool() const noexcept { return loaded; }
};

} // namespace corvane::workbench::host
