#include "CommandLine.hpp"
#include "ExitCode.hpp"
#include "OpenConfiguration.hpp"
#include "StandardOutputStream.hpp"
#include "commands.hpp"
#include "configurationProblems.hpp"
#include "text.hpp"
#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/numeric/format.hpp>

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <vector>

namespace corvane::skillbench {

namespace {

namespace encoder = utils::json::encoder;

void printText(const OpenConfiguration& configuration,
               const std::vector<ConfigurationProblem>& problems, std::ostream& out) {
    for (const ConfigurationProblem& entry : problems) {
        out << onOneLine(toString(entry.problem)) << '\n';
    }
    if (problems.empty()) {
        out << pathText(configuration.file()) << ": "
            << countText(configuration.workbench().elementCount(), "element") << ", no problems\n";
    }
}

void printJson(const OpenConfiguration& configuration,
               const std::vector<ConfigurationProblem>& problems, std::ostream& out) {
    StandardOutputStream stream(out);
    encoder::Document document(stream, encoder::Document::Format::Indented);
    encoder::Object object = document.root().writeObject();
    const std::uint64_t errors = errorCount(problems);
    object.addMember("configuration").writeString(pathText(configuration.file()));
    object.addMember("loaded").writeBool(configuration.loaded());
    object.addMember("complete").writeBool(configuration.complete());
    object.addMember("errors").writeNumber(utils::numeric::format(errors));
    object.addMember("warnings")
        .writeNumber(utils::numeric::format(std::uint64_t{problems.size()} - errors));
    writeJson(object.addMember("problems").writeArray(), problems);
    document.close();
}

} // namespace

int check(Arguments arguments, const Streams& streams) {
    ConfigurationArguments configurationArguments;
    bool json = false;
    CommandLine commandLine(
        "skillbench check",
        "Prints what is wrong with a configuration, one problem a line: what cannot be loaded, "
        "references that do not resolve, and properties that are not valid. The exit code is 0 "
        "when there are no errors, else 1; warnings do not count.");
    commandLine.addFlag("json", json, "machine-readable output");
    configurationArguments.addTo(commandLine);
    if (!commandLine.parse(arguments, streams.out)) {
        return kDone;
    }

    const OpenConfiguration configuration(configurationArguments, streams);
    const std::vector<ConfigurationProblem> problems = configurationProblems(configuration);
    if (json) {
        printJson(configuration, problems, streams.out);
    } else {
        printText(configuration, problems, streams.out);
    }
    return errorCount(problems) == 0 ? kDone : kProblems;
}

} // namespace corvane::skillbench
