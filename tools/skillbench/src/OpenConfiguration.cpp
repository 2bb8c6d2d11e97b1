#include "OpenConfiguration.hpp"

#include "CommandLine.hpp"
#include "Failure.hpp"
#include "ProgressBar.hpp"
#include "text.hpp"

#include <fstream>
#include <ostream>
#include <system_error>

namespace corvane::skillbench {

namespace {

namespace host = workbench::host;

void requireReadable(const std::filesystem::path& file) {
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    const std::string name = inQuotes(pathText(file));
    if (status.type() == std::filesystem::file_type::not_found) {
        throw Failure(kWrongUsage, name + " does not exist");
    }
    if (error) {
        throw Failure(kWrongUsage, name + " cannot be read: " + error.message());
    }
    if (std::filesystem::is_directory(status)) {
        throw Failure(kWrongUsage, name + " is a directory, not a configuration");
    }
    if (!std::ifstream(file, std::ios::binary).good()) {
        throw Failure(kWrongUsage, name + " cannot be read");
    }
}

} // namespace

void ConfigurationArguments::addTo(CommandLine& commandLine) {
    commandLine.addValues("skill", "LIBRARY...", skills,
                          "the libraries of the skills that the configuration needs");
    commandLine.addFlag("keep-going", keepGoing, "leave out what cannot be loaded");
    commandLine.addFlag("resolve-imports", resolveImports,
                        "let import references point at elements of the configuration");
    commandLine.addParameter("CONFIGURATION", configuration, "the configuration file");
}

OpenConfiguration::OpenConfiguration(const ConfigurationArguments& arguments,
                                     const Streams& streams)
    : file_(pathOf(arguments.configuration)) {
    if (arguments.skills.empty()) {
        throw UsageFailure("--skill LIBRARY is missing");
    }
    for (const std::string& library : arguments.skills) {
        if (const auto opened = workbench_.loadSkills(pathOf(library)); !opened) {
            throw Failure(kWrongUsage, opened.error().text);
        }
    }
    requireReadable(file_);
    host::LoadOptions options;
    options.resolveImportReferences = arguments.resolveImports;
    // The first load says whether the second one left something out.
    result_ = load(options, streams);
    complete_ = result_.loaded;
    if (!result_.loaded && arguments.keepGoing) {
        options.keepGoing = true;
        result_ = load(options, streams);
    }
}

OpenConfiguration::~OpenConfiguration() = default;

host::LoadResult OpenConfiguration::load(const host::LoadOptions& options, const Streams& streams) {
    if (!streams.showsProgress) {
        return workbench_.loadConfiguration(file_, options);
    }
    ProgressBar bar(streams.err);
    host::LoadOptions watched = options;
    watched.progress = [&](const host::LoadProgress& progress) {
        bar.show(progress);
        return true;
    };
    return workbench_.loadConfiguration(file_, watched);
}

void OpenConfiguration::printLoadProblems(std::ostream& to) const {
    for (const host::Problem& problem : result_.problems) {
        to << onOneLine(host::toString(problem)) << '\n';
    }
}

void OpenConfiguration::requireWritable(const std::filesystem::path& target) const {
    if (!result_.loaded) {
        throw Failure(kProblems,
                      inQuotes(pathText(file_)) + " cannot be loaded; no file was written");
    }
    std::error_code ignored;
    if (!complete_ && std::filesystem::equivalent(file_, target, ignored)) {
        throw Failure(kProblems, "what was left out of " + inQuotes(pathText(file_)) +
                                     " would be lost; write to another file with -o");
    }
}

} // namespace corvane::skillbench
