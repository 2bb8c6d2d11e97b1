// skillbench: loads skills, and shows, checks, edits and saves configurations.

#include "console.hpp"
#include "run.hpp"

#include <exception>
#include <iostream>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    namespace skillbench = corvane::skillbench;
    try {
        skillbench::prepareConsole();
        const std::vector<std::string> arguments = skillbench::commandLineArguments(argc, argv);
        const int exitCode = skillbench::run(
            arguments, {std::cout, std::cerr, skillbench::isErrorStreamATerminal()});
        if (!std::cout.flush()) {
            std::cerr << "skillbench: the output cannot be written\n";
            return 1;
        }
        return exitCode;
    } catch (const std::exception& exception) {
        std::cerr << "skillbench: " << exception.what() << '\n';
        return 1;
    }
}
