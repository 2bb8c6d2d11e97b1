#pragma once

namespace corvane::skillbench {

/// What the program answers to the one that called it.
enum ExitCode : int {
    kDone = 0,
    /// The configuration is not right, or what was asked for cannot be done to it.
    kProblems = 1,
    /// The command line cannot be used, or a file or library that it names cannot be opened.
    kWrongUsage = 2
};

} // namespace corvane::skillbench
