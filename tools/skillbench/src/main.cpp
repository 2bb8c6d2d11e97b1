// skillbench: loads skills, and shows, checks, edits and saves configurations.

#include "ExitCode.hpp"
#include "LineBuffer.hpp"
#include "ProgressBar.hpp"
#include "abnormalEnd.hpp"
#include "console.hpp"
#include "run.hpp"

#include <exception>
#include <iostream>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace {

int runWith(const std::vector<std::string>& arguments, std::ostream& out) {
    namespace skillbench = corvane::skillbench;
    skillbench::Streams streams{std::cin, out, std::cerr};
    if (skillbench::isErrorStreamATerminal()) {
        streams.progressAfter = skillbench::ProgressBar::kPatience;
    }
    const int exitCode = skillbench::run(arguments, streams);
    if (!out.flush()) {
        std::cerr << "skillbench: the output cannot be written\n";
        return skillbench::kProblems;
    }
    return exitCode;
}

} // namespace

int main(int argc, char** argv) {
    namespace skillbench = corvane::skillbench;
    // Lives until the end of the process, which may come while main() runs.
    static skillbench::LineBuffer buffer(skillbench::writeToOutputStream);
    skillbench::reportAbnormalEnd(buffer);
    try {
        skillbench::prepareConsole();
        std::ostream out(&buffer);
        return runWith(skillbench::commandLineArguments(argc, argv), out);
    } catch (const std::exception& exception) {
        std::cerr << "skillbench: " << exception.what() << '\n';
        return skillbench::kProblems;
    }
}
