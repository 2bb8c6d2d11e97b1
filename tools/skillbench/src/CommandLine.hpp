#pragma once

#include <functional>
#include <iosfwd>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace cxxopts {
class Options;
class ParseResult;
} // namespace cxxopts

namespace corvane::skillbench {

/// The arguments of one command: what it takes is described first, then parse() fills it in.
///
/// Arguments without a dash go to the positional parameters in their order. An option that takes
/// several values takes all up to the next option; when positional parameters are then left without
/// arguments, they get the last ones of these, so that
///
///     show --skill a.so b.so plant.json
///     show --skill a.so plant.json --json
///
/// mean what they say. Everything behind "--" is positional.
class CommandLine {
public:
    /// The name and the description are for the help.
    CommandLine(const std::string& name, const std::string& description);
    CommandLine(const CommandLine&) = delete;
    CommandLine& operator=(const CommandLine&) = delete;
    ~CommandLine();

    // The variables must live until parse() has returned. An option has a long name and may have a
    // letter in front of it ("o,output").

    void addFlag(const std::string& names, bool& variable, const std::string& description);
    /// An option with one value; the last one counts when it comes several times.
    void addValue(const std::string& names, const std::string& valueName,
                  std::optional<std::string>& variable, const std::string& description);
    /// An option with one value or more, each time. At most one per command.
    void addValues(const std::string& names, const std::string& valueName,
                   std::vector<std::string>& variable, const std::string& description);
    /// An option with one value that may come several times: `take` is called at the end of the
    /// parsing, for all such options in the order in which they stand.
    void addOrdered(const std::string& names, const std::string& valueName,
                    std::function<void(const std::string&)> take, const std::string& description);

    /// A positional parameter, which must be given.
    void addParameter(const std::string& name, std::string& variable,
                      const std::string& description);
    /// Takes one positional argument or more, behind the other parameters. At most one per command,
    /// and not together with addValues().
    void addParameters(const std::string& name, std::vector<std::string>& variable,
                       const std::string& description);

    /// Fills the variables. Returns false when the user asked for the help, which is then printed.
    /// Throws a UsageFailure when the arguments are not as described.
    [[nodiscard]] bool parse(std::span<const std::string> arguments, std::ostream& out);

private:
    struct Parameter {
        std::string name;
        std::string description;
        /// Takes what it needs from the front.
        std::function<void(std::span<const std::string>&)> take;
    };

    [[nodiscard]] cxxopts::ParseResult parseOptions(std::span<const std::string> arguments) const;
    void takeParameters(std::span<const std::string> given) const;
    void printHelp(std::ostream& out) const;

    std::unique_ptr<cxxopts::Options> options_;
    std::map<std::string, bool*> flags_;
    std::map<std::string, std::function<void(const std::string&)>> takers_;
    std::string listName_;
    std::vector<std::string>* list_ = nullptr;
    std::vector<Parameter> parameters_;
    bool help_ = false;
};

} // namespace corvane::skillbench
