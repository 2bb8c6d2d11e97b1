#include "CommandLine.hpp"
#include "ExitCode.hpp"
#include "OpenConfiguration.hpp"
#include "commands.hpp"
#include "showJson.hpp"
#include "text.hpp"
#include <corvane/workbench/host/TreePrinter.hpp>

#include <ostream>
#include <sstream>
#include <string>

namespace corvane::skillbench {

namespace {

namespace host = workbench::host;

void printText(const OpenConfiguration& configuration, const Streams& streams) {
    configuration.printLoadProblems(streams.err);
    if (configuration.loaded()) {
        const host::Workbench& workbench = configuration.workbench();
        streams.out << pathText(configuration.file()) << "  ("
                    << countText(workbench.elementCount(), "element") << ", "
                    << countText(workbench.root().properties().propertyErrorCount(), "error")
                    << ")\n";
        host::TreePrinter(streams.out).printChildren(workbench.root());
    }
}

} // namespace

int show(Arguments arguments, const Streams& streams) {
    ConfigurationArguments configurationArguments;
    bool json = false;
    CommandLine commandLine(
        "skillbench show",
        "Prints the tree of a configuration: each element with the number of errors at and below "
        "it, each property with its state (ok, error or hidden), name and value.");
    commandLine.addFlag("json", json, "machine-readable output");
    configurationArguments.addTo(commandLine);
    if (!commandLine.parse(arguments, streams.out)) {
        return kDone;
    }

    const OpenConfiguration configuration(configurationArguments, streams);
    if (json) {
        // A program gets all or nothing.
        std::ostringstream whole;
        showJson(configuration, whole);
        streams.out << whole.view();
    } else {
        printText(configuration, streams);
    }
    return configuration.complete() ? kDone : kProblems;
}

} // namespace corvane::skillbench
