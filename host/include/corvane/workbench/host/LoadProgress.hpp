#pragma once

#include <cstdint>

namespace corvane::workbench::host {

/// How far the loading of a configuration has come. See LoadOptions::progress.
struct LoadProgress {
    /// What the load is doing.
    enum class Stage {
        /// Reading the file; counted in bytes.
        Reading,
        /// Making elements; counted in elements, their total is not known before the end.
        Elements,
        /// Resolving the references; counted in references.
        References,
        /// Configuring the properties and counting their errors; counted in elements.
        Properties
    };

    /// The stage that the numbers below belong to.
    Stage stage = Stage::Reading;
    /// In the unit of the stage.
    std::uint64_t done = 0;
    /// 0 when unknown.
    std::uint64_t total = 0;
};

} // namespace corvane::workbench::host
