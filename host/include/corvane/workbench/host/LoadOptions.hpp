#pragma once

#include <corvane/workbench/host/LoadProgress.hpp>

#include <functional>

namespace corvane::workbench::host {

/// How a configuration is loaded. The defaults load all or nothing.
struct LoadOptions {
    /// Leave out what cannot be loaded (an element with everything below it, in the usual case)
    /// and go on with the rest of the file, collecting every problem. Otherwise the first such
    /// problem ends the load. A text that is no JSON ends the load in any case.
    bool keepGoing = false;
    /// Resolve references with the ".import:" prefix against this configuration. Otherwise they
    /// stay import references. One whose key begins with the prefix again stays one in any case and
    /// is a problem then.
    bool resolveImportReferences = false;
    /// Is told now and then how far the load has come: at the beginning and the end of each stage
    /// and about a hundred times in between. Returning false gives the load up. May be empty.
    std::function<bool(const LoadProgress&)> progress = {};
};

} // namespace corvane::workbench::host
