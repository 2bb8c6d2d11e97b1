#include "run.hpp"

#include "Failure.hpp"
#include "abnormalEnd.hpp"
#include "commands.hpp"
#include "text.hpp"
#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/Problem.hpp>

#include <algorithm>
#include <array>
#include <exception>
#include <new>
#include <ostream>
#include <string_view>

namespace corvane::skillbench {

namespace {

struct Command {
    std::string_view name;
    std::string_view summary;
    int (*run)(Arguments, const Streams&);
};

constexpr std::array kCommands{
    Command{"skills", "list the skills of libraries and their element classes", skills},
    Command{"show", "print the tree of a configuration with all properties", show},
    Command{"check", "print what is wrong with a configuration", check},
    Command{"save", "load a configuration and write it again", save},
    Command{"edit", "rename, move, remove and set, and see who is told", edit},
    Command{"references", "list who refers to an element", references},
    Command{"new", "write the project of a new skill", newProject},
    Command{"type", "play keystrokes in a time stamp or UUID box", type},
};

constexpr std::string_view kSeeHelp = "“skillbench --help” lists them";

void printHelp(std::ostream& out) {
    out << "skillbench COMMAND ...     skills and their configurations, without the workbench\n\n";
    for (const Command& command : kCommands) {
        out << "  " << command.name << std::string(12 - command.name.size(), ' ') << command.summary
            << '\n';
    }
    out << "\n“skillbench COMMAND --help” explains a command. The exit code is 0 when all is "
           "well,\n"
           "1 when the configuration has problems or cannot be changed as asked, and 2 when the\n"
           "command line is wrong or names a file or library that cannot be opened.\n";
}

} // namespace

int run(std::span<const std::string> arguments, const Streams& streams) {
    if (arguments.empty()) {
        streams.err << "skillbench: a command is missing; " << kSeeHelp << '\n';
        return kWrongUsage;
    }
    const std::string& name = arguments.front();
    if (name == "--help" || name == "-h") {
        printHelp(streams.out);
        return kDone;
    }
    if (name == "--version") {
        streams.out << "skillbench " CORVANE_SKILLBENCH_VERSION "\n";
        return kDone;
    }
    const auto command =
        std::find_if(kCommands.begin(), kCommands.end(),
                     [&](const Command& candidate) { return candidate.name == name; });
    if (command == kCommands.end()) {
        streams.err << "skillbench: there is no command " << inQuotes(name) << "; " << kSeeHelp
                    << '\n';
        return kWrongUsage;
    }
    const auto complain = [&](std::string_view text) -> std::ostream& {
        return streams.err << "skillbench " << name << ": " << onOneLine(text);
    };
    setConfigurationName({});
    try {
        return command->run(arguments.subspan(1), streams);
    } catch (const UsageFailure& failure) {
        complain(failure.what()) << "; “skillbench " << name << " --help” explains\n";
        return failure.exitCode();
    } catch (const Failure& failure) {
        complain(failure.what()) << '\n';
        return failure.exitCode();
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const workbench::host::SkillFailure& failure) {
        const workbench::host::Problem problem{
            pathOf(configurationName()), failure.line(), failure.column(),
            workbench::host::Problem::Severity::Error, failure.what()};
        if (failure.line() != 0) {
            streams.err << onOneLine(toString(problem)) << '\n';
        } else {
            complain(failure.what()) << '\n';
        }
        return kProblems;
    } catch (const std::exception& exception) {
        complain(exception.what()) << '\n';
        return kProblems;
    }
}

} // namespace corvane::skillbench
