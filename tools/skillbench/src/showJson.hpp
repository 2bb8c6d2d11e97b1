#pragma once

// The tree of a configuration as JSON.

#include <iosfwd>

namespace corvane::skillbench {

class OpenConfiguration;

void showJson(const OpenConfiguration& configuration, std::ostream& out);

} // namespace corvane::skillbench
