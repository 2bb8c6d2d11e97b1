#pragma once

// What differs between the consoles of the platforms.

#include <string>
#include <vector>

namespace corvane::skillbench {

/// Makes the console take and the standard streams pass on UTF-8 as it is.
void prepareConsole();

/// The arguments behind the program's name, as UTF-8.
[[nodiscard]] std::vector<std::string> commandLineArguments(int argc, const char* const* argv);

/// Whether the standard error stream is a terminal.
[[nodiscard]] bool isErrorStreamATerminal();

} // namespace corvane::skillbench
