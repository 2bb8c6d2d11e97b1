#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

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

    // The variables must live until parse() has returned. Names of options are as the user writes
    // them, alternatives separated by commas ("-o,--output").

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
    class State;
    std::unique_ptr<State> state_;
};

} // namespace corvane::skillbench
