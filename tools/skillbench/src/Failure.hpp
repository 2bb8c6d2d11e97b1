#pragma once

#include "ExitCode.hpp"

#include <stdexcept>
#include <string>

namespace corvane::skillbench {

/// Ends a command: the sentence that the user reads (UTF-8) and the exit code.
class Failure : public std::runtime_error {
public:
    Failure(ExitCode exitCode, const std::string& sentence)
        : std::runtime_error(sentence), exitCode_(exitCode) {}

    [[nodiscard]] ExitCode exitCode() const noexcept { return exitCode_; }

private:
    ExitCode exitCode_;
};

/// The command line itself is wrong: run() adds where the help is.
class UsageFailure final : public Failure {
public:
    explicit UsageFailure(const std::string& sentence) : Failure(kWrongUsage, sentence) {}
};

} // namespace corvane::skillbench
