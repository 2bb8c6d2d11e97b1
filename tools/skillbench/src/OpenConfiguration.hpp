#pragma once

#include "ConfigurationText.hpp"
#include "Streams.hpp"
#include <corvane/workbench/host/Workbench.hpp>

#include <filesystem>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace corvane::skillbench {

class CommandLine;

/// What the commands that load a configuration have in common.
struct ConfigurationArguments {
    std::vector<std::string> skills;
    std::string configuration;
    bool keepGoing = false;
    bool resolveImports = false;

    /// Describes --skill, CONFIGURATION, --keep-going and --resolve-imports.
    void addTo(CommandLine& commandLine);
};

/// A workbench with the skills and the configuration that a command line names.
class OpenConfiguration {
public:
    /// Opens the libraries and loads the configuration, which may fail: see loaded(). Throws a
    /// Failure when a library or the file cannot be opened.
    OpenConfiguration(const ConfigurationArguments& arguments, const Streams& streams);
    OpenConfiguration(const OpenConfiguration&) = delete;
    OpenConfiguration& operator=(const OpenConfiguration&) = delete;
    ~OpenConfiguration();

    [[nodiscard]] workbench::host::Workbench& workbench() noexcept { return *workbench_; }
    [[nodiscard]] const workbench::host::Workbench& workbench() const noexcept {
        return *workbench_;
    }
    /// Its text has been forgotten.
    [[nodiscard]] const ConfigurationText& source() const noexcept { return source_; }
    [[nodiscard]] const std::filesystem::path& file() const noexcept { return source_.file(); }
    /// Whether the workbench has the configuration.
    [[nodiscard]] bool loaded() const noexcept { return result_.loaded; }
    /// Whether it has all of it; otherwise --keep-going left parts out.
    [[nodiscard]] bool complete() const noexcept { return complete_; }
    /// What came of the load.
    [[nodiscard]] const workbench::host::LoadResult& result() const noexcept { return result_; }
    /// Prints the problems of the load, each on a line of its own.
    void printLoadProblems(std::ostream& to) const;
    /// Prints a problem that came up later; a place is one in the configuration's file.
    void printProblem(workbench::host::Problem problem, std::ostream& to) const;

private:
    [[nodiscard]] workbench::host::LoadResult load(const workbench::host::LoadOptions& options,
                                                   const Streams& streams);

    std::unique_ptr<workbench::host::Workbench> workbench_;
    ConfigurationText source_;
    workbench::host::LoadResult result_;
    bool complete_ = false;
};

} // namespace corvane::skillbench
