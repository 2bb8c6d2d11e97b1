#pragma once

// Everything that is wrong with a configuration: what its load had to say and the properties whose
// values are not valid.

#include <corvane/workbench/host/LoadResult.hpp>
#include <corvane/workbench/host/Problem.hpp>

#include <filesystem>
#include <string>
#include <vector>

namespace corvane::workbench::host {

class Workbench;

/// One thing that is wrong, and the property that it is about.
struct ConfigurationProblem {
    /// Said as it is printed; a property's problem stands at its element.
    Problem problem;
    /// The key of the element and the path of the property that is not valid; empty for a problem
    /// of the load.
    /// @{
    std::string element{};
    std::string property{};
    /// @}
};

/// What is wrong with the configuration that the workbench has, whose load gave the result; `file`
/// is where the problems of properties are said to stand. In the order of the file. A reference
/// that does not resolve makes its property invalid as well; it is said once, where the key stands.
/// Configures the elements.
[[nodiscard]] std::vector<ConfigurationProblem>
configurationProblems(const Workbench& workbench, const LoadResult& result,
                      const std::filesystem::path& file);

} // namespace corvane::workbench::host
