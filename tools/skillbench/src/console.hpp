#pragma once

// What differs between the consoles of the platforms.

#include <string>
#include <string_view>
#include <vector>

namespace corvane::skillbench {

/// Makes the console take and the standard streams pass on UTF-8 as it is.
void prepareConsole();

/// The arguments behind the program's name, as UTF-8.
[[nodiscard]] std::vector<std::string> commandLineArguments(int argc, const char* const* argv);

// Write everything at once, past all buffers; return whether it could be written. They may be
// called in the handler of a signal.

[[nodiscard]] bool writeToOutputStream(std::string_view text) noexcept;
[[nodiscard]] bool writeToErrorStream(std::string_view text) noexcept;

/// Whether the standard error stream is a terminal.
[[nodiscard]] bool isErrorStreamATerminal();

} // namespace corvane::skillbench
