#include "OpenConfiguration.hpp"

#include "CommandLine.hpp"
#include "Failure.hpp"
#include "ProgressBar.hpp"
#include "abnormalEnd.hpp"
#include "text.hpp"
#include <corvane/utils/io/MemoryInputStream.hpp>

#include <ostream>

namespace corvane::skillbench {

namespace {

namespace host = workbench::host;

std::unique_ptr<host::Workbench> openSkills(const std::vector<std::string>& libraries) {
    if (libraries.empty()) {
        throw UsageFailure("--skill LIBRARY is missing");
    }
    auto workbench = std::make_unique<host::Workbench>();
    for (const std::string& library : libraries) {
        if (const auto opened = workbench->loadSkills(pathOf(library)); !opened) {
            throw Failure(kWrongUsage, opened.error().text);
        }
    }
    return workbench;
}

} // namespace

void ConfigurationArguments::addTo(CommandLine& commandLine) {
    commandLine.addValues("skill", "LIBRARY...", skills,
                          "the libraries of the skills that the configuration needs");
    commandLine.addFlag("keep-going", keepGoing, "leave out what cannot be loaded");
    commandLine.addFlag("resolve-imports", resolveImports,
                        "let import references point at elements of the configuration");
    commandLine.addParameter("CONFIGURATION", configuration,
                             "the configuration file; “-” is the standard input");
}

OpenConfiguration::OpenConfiguration(const ConfigurationArguments& arguments,
                                     const Streams& streams)
    : workbench_(openSkills(arguments.skills)), source_(arguments.configuration, streams.in) {
    setConfigurationName(pathText(source_.file()));
    host::LoadOptions options;
    options.resolveImportReferences = arguments.resolveImports;
    // The first load says whether the second one left something out.
    result_ = load(options, streams);
    complete_ = result_.loaded;
    if (!result_.loaded && arguments.keepGoing) {
        options.keepGoing = true;
        result_ = load(options, streams);
    }
    source_.forgetText();
}

OpenConfiguration::~OpenConfiguration() = default;

host::LoadResult OpenConfiguration::load(const host::LoadOptions& options, const Streams& streams) {
    utils::io::MemoryInputStream<char> stream(source_.text());
    if (!streams.progressAfter) {
        return workbench_->loadConfiguration(stream, source_.file(), options);
    }
    ProgressBar bar(streams.err, *streams.progressAfter);
    host::LoadOptions watched = options;
    watched.progress = [&](const host::LoadProgress& progress) {
        bar.show(progress);
        return true;
    };
    return workbench_->loadConfiguration(stream, source_.file(), watched);
}

void OpenConfiguration::printLoadProblems(std::ostream& to) const {
    for (const host::Problem& problem : result_.problems) {
        to << onOneLine(host::toString(problem)) << '\n';
    }
}

void OpenConfiguration::printProblem(host::Problem problem, std::ostream& to) const {
    if (problem.line != 0) {
        problem.file = source_.file();
    }
    to << onOneLine(host::toString(problem)) << '\n';
}

} // namespace corvane::skillbench
