#pragma once

#include "Streams.hpp"
#include <corvane/utils/io/OutputStream.hpp>

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>

namespace corvane::skillbench {

class CommandLine;
class OpenConfiguration;

/// What the commands that save a configuration have in common.
struct SaveArguments {
    std::optional<std::string> output{};
    bool force = false;
    bool noVerify = false;

    /// Describes --output, --force and --no-verify.
    void addTo(CommandLine& commandLine);
};

/// Where a configuration is saved: a file, or, for "-", the standard output. It refers to what it
/// is made from.
class SaveTarget {
public:
    /// Throws a Failure when the configuration is not loaded, or when saving it there would lose
    /// parts that --keep-going left out.
    SaveTarget(const OpenConfiguration& configuration, const SaveArguments& arguments,
               const Streams& streams);

    /// Where to tell the user something: the standard output, unless it takes the configuration.
    [[nodiscard]] std::ostream& report() const;
    /// Saves the configuration and says so. Throws a Failure when that is not possible, or when the
    /// file has changed since the configuration was read from it; the file is as it was then.
    void save() const;

private:
    [[nodiscard]] bool isStandardOutput() const;
    void write(utils::io::OutputStream<char>& stream) const;

    const OpenConfiguration& configuration_;
    const SaveArguments& arguments_;
    const Streams& streams_;
    std::filesystem::path path_;
};

} // namespace corvane::skillbench
