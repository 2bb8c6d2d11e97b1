#pragma once

// Runs the program itself, as a shell does.

#include "SkillbenchFixture.hpp"
#include <corvane/utils/string/transcode.hpp>

#include <cstdlib>
#include <string>

#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace corvane::skillbench::test {

class SkillbenchProgram : public SkillbenchTest {
protected:
    /// Runs the program with the arguments as they stand in a shell's line, redirections included;
    /// the output of the last run is in files of the test's folder. A program that a signal ends
    /// has the exit code that shells give it.
    static Outcome runProgram(const std::string& arguments) {
        const std::string command =
            "\"" CORVANE_SKILLBENCH "\" " + arguments + " >out.txt 2>err.txt";
#ifdef _WIN32
        // The shell takes the outer quotes away.
        const int exitCode = _wsystem(utils::string::toWide("\"" + command + "\"").c_str());
#else
        const int status = std::system(command.c_str());
        const int exitCode = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
#endif
        return {exitCode, read("out.txt"), read("err.txt")};
    }

    [[nodiscard]] static std::string inShell(const std::string& path) { return '"' + path + '"'; }
};

} // namespace corvane::skillbench::test
