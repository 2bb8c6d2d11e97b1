#pragma once

// Everything that is wrong with a configuration: what its load had to say and the properties whose
// values are not valid.

#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/workbench/host/Problem.hpp>

#include <cstddef>
#include <string>
#include <vector>

namespace corvane::skillbench {

class OpenConfiguration;

struct ConfigurationProblem {
    /// Said as it is printed; a property's problem stands at its element.
    workbench::host::Problem problem;
    /// The key of the element and the path of the property that is not valid; empty for a problem
    /// of the load.
    std::string element{};
    std::string property{};
};

/// In the order of the file. A reference that does not resolve makes its property invalid as well;
/// it is said once, where the key stands.
[[nodiscard]] std::vector<ConfigurationProblem>
configurationProblems(const OpenConfiguration& configuration);

/// How many of them are errors, not warnings.
[[nodiscard]] std::size_t errorCount(const std::vector<ConfigurationProblem>& problems);

void writeJson(utils::json::encoder::Array array,
               const std::vector<ConfigurationProblem>& problems);

} // namespace corvane::skillbench
