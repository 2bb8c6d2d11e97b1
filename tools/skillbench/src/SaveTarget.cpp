#include "SaveTarget.hpp"

#include "CommandLine.hpp"
#include "Failure.hpp"
#include "OpenConfiguration.hpp"
#include "StandardOutputStream.hpp"
#include "standardStreams.hpp"
#include "text.hpp"
#include <corvane/utils/io/FileOutputStream.hpp>

#include <ostream>

namespace corvane::skillbench {

void SaveArguments::addTo(CommandLine& commandLine) {
    commandLine.addValue("o,output", "FILE", output,
                         "the file to write, CONFIGURATION itself without this option; “-” is the "
                         "standard output");
    commandLine.addFlag("force", force, "overwrite CONFIGURATION though it has changed meanwhile");
    commandLine.addFlag("no-verify", noVerify, "do not try whether the skills load what they save");
}

SaveTarget::SaveTarget(const OpenConfiguration& configuration, const SaveArguments& arguments,
                       const Streams& streams)
    : configuration_(configuration), arguments_(arguments), streams_(streams),
      path_(arguments.output ? pathOf(*arguments.output) : configuration.source().file()) {
    const std::string name = inQuotes(pathText(configuration.source().file()));
    if (!configuration.loaded()) {
        throw Failure(kProblems, name + " cannot be loaded; no file was written");
    }
    if (!configuration.complete() && configuration.source().isFile(path_)) {
        throw Failure(kProblems, "what was left out of " + name +
                                     " would be lost; write to another file with -o");
    }
}

std::ostream& SaveTarget::report() const {
    return isStandardOutput() ? streams_.err : streams_.out;
}

void SaveTarget::save() const {
    if (isStandardOutput()) {
        StandardOutputStream stream(streams_.out);
        write(stream);
    } else {
        utils::io::FileOutputStream stream(path_);
        write(stream);
        const ConfigurationText& source = configuration_.source();
        if (!arguments_.force && source.isFile(path_) && source.hasChanged()) {
            throw Failure(kProblems, inQuotes(pathText(path_)) +
                                         " has changed since it was read; nothing was saved "
                                         "(--force overwrites it)");
        }
        stream.close();
    }
    report() << "saved " << countText(configuration_.workbench().elementCount(), "element")
             << " to " << (isStandardOutput() ? "the standard output" : pathText(path_)) << '\n';
}

bool SaveTarget::isStandardOutput() const {
    return path_ == kStandardStream;
}

void SaveTarget::write(utils::io::OutputStream<char>& stream) const {
    auto saved =
        configuration_.workbench().saveConfiguration(stream, {.loadAgain = !arguments_.noVerify});
    if (!saved) {
        configuration_.printProblem(saved.error(), streams_.err);
        throw Failure(kProblems, "nothing was saved");
    }
}

} // namespace corvane::skillbench
