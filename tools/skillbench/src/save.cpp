#include "CommandLine.hpp"
#include "ExitCode.hpp"
#include "OpenConfiguration.hpp"
#include "SaveTarget.hpp"
#include "commands.hpp"

namespace corvane::skillbench {

int save(Arguments arguments, const Streams& streams) {
    ConfigurationArguments configurationArguments;
    SaveArguments saveArguments;
    CommandLine commandLine("skillbench save",
                            "Loads a configuration and writes it again, in the order and form of "
                            "the workbench. The file is replaced when all is written and the "
                            "skills could load it.");
    saveArguments.addTo(commandLine);
    configurationArguments.addTo(commandLine);
    if (!commandLine.parse(arguments, streams.out)) {
        return kDone;
    }

    const OpenConfiguration configuration(configurationArguments, streams);
    configuration.printLoadProblems(streams.err);
    SaveTarget(configuration, saveArguments, streams).save();
    return kDone;
}

} // namespace corvane::skillbench
