#pragma once

// What is wrong with the configuration of a command line.

#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/workbench/host/configurationProblems.hpp>

#include <cstddef>
#include <vector>

namespace corvane::skillbench {

class OpenConfiguration;

using workbench::host::ConfigurationProblem;

[[nodiscard]] std::vector<ConfigurationProblem>
configurationProblems(const OpenConfiguration& configuration);

/// How many of them are errors, not warnings.
[[nodiscard]] std::size_t errorCount(const std::vector<ConfigurationProblem>& problems);

void writeJson(utils::json::encoder::Array array,
               const std::vector<ConfigurationProblem>& problems);

} // namespace corvane::skillbench
