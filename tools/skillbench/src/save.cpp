#include "CommandLine.hpp"
#include "Failure.hpp"
#include "OpenConfiguration.hpp"
#include "commands.hpp"
#include "text.hpp"

#include <filesystem>
#include <optional>
#include <ostream>

namespace corvane::skillbench {

int save(Arguments arguments, const Streams& streams) {
    ConfigurationArguments configurationArguments;
    std::optional<std::string> output;
    CommandLine commandLine("skillbench save",
                            "Loads a configuration and writes it again, in the order and form of "
                            "the workbench. The file is replaced when all is written.");
    commandLine.addValue("o,output", "FILE", output,
                         "the file to write, CONFIGURATION itself "
                         "without this option");
    configurationArguments.addTo(commandLine);
    if (!commandLine.parse(arguments, streams.out)) {
        return kDone;
    }

    const OpenConfiguration configuration(configurationArguments, streams);
    configuration.printLoadProblems(streams.err);
    const std::filesystem::path target = output ? pathOf(*output) : configuration.file();
    configuration.requireWritable(target);
    if (const auto saved = configuration.workbench().saveConfiguration(target); !saved) {
        throw Failure(kProblems, saved.error().text);
    }
    streams.out << "saved " << countText(configuration.workbench().elementCount(), "element")
                << " to " << pathText(target) << '\n';
    return kDone;
}

} // namespace corvane::skillbench
