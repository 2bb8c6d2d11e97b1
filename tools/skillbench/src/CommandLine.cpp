#include "CommandLine.hpp"

#include "Failure.hpp"
#include "text.hpp"

#include <CLI/CLI.hpp>

#include <cstddef>
#include <map>
#include <ostream>
#include <string_view>
#include <utility>

namespace corvane::skillbench {

namespace {

/// More values than anybody gives; a larger limit makes the parser take brackets for lists.
constexpr int kMostValues = 100'000;

/// With line breaks for a terminal of the usual width.
std::string wrapped(std::string_view text) {
    constexpr std::size_t kWidth = 80;
    std::string result;
    while (text.size() > kWidth) {
        const std::size_t blank = text.rfind(' ', kWidth);
        if (blank == std::string_view::npos) {
            break;
        }
        result += text.substr(0, blank);
        result += '\n';
        text.remove_prefix(blank + 1);
    }
    result += text;
    return result + '\n';
}

struct Parameter {
    std::string name;
    std::string description;
    std::string* variable;
};

struct Parameters {
    std::string name;
    std::string description;
    std::vector<std::string>* variable = nullptr;
};

} // namespace

class CommandLine::State {
public:
    CLI::App app;
    std::vector<std::pair<CLI::Option*, bool*>> flags;
    std::vector<std::pair<CLI::Option*, std::optional<std::string>*>> values;
    std::map<const CLI::Option*, std::function<void(const std::string&)>> ordered;
    CLI::Option* manyValues = nullptr;
    std::vector<std::string>* manyValuesVariable = nullptr;
    std::vector<Parameter> parameters;
    Parameters moreParameters;

    /// Options are read as texts, in place of the parser's conversions, which have a meaning for
    /// brackets.
    CLI::Option* addOption(const std::string& names, const std::string& description) {
        CLI::Option* option =
            app.add_option(names, [](const CLI::results_t&) { return true; }, description);
        option->allow_extra_args(false)->take_all();
        return option;
    }

    /// The arguments that are no options and belong to none. The parser is not told of the
    /// positional parameters, because it would take brackets around an argument for a list.
    [[nodiscard]] std::vector<std::string> positionalArguments() const {
        std::vector<std::string> result;
        bool onlyPositional = false;
        for (const std::string& argument : app.remaining()) {
            if (!onlyPositional && argument == "--") {
                onlyPositional = true;
            } else if (!onlyPositional && argument.size() > 1 && argument.front() == '-') {
                const std::size_t end = argument.find('=');
                throw UsageFailure("there is no option " + inQuotes(argument.substr(0, end)));
            } else {
                result.push_back(argument);
            }
        }
        return result;
    }

    void fill() const {
        for (const auto& [option, variable] : flags) {
            *variable = option->count() != 0;
        }
        for (const auto& [option, variable] : values) {
            if (option->count() != 0) {
                *variable = option->results().back();
            }
        }
        if (manyValues != nullptr) {
            *manyValuesVariable = manyValues->results();
        }
        fillParameters();
        std::map<const CLI::Option*, std::size_t> taken;
        for (const CLI::Option* option : app.parse_order()) {
            if (const auto found = ordered.find(option); found != ordered.end()) {
                found->second(option->results()[taken[option]++]);
            }
        }
    }

    void fillParameters() const {
        std::vector<std::string> given = positionalArguments();
        if (manyValues != nullptr) {
            // One value is the option's own.
            while (given.size() < parameters.size() && manyValuesVariable->size() > 1) {
                given.insert(given.begin(), std::move(manyValuesVariable->back()));
                manyValuesVariable->pop_back();
            }
        }
        auto next = given.begin();
        for (const Parameter& parameter : parameters) {
            if (next == given.end()) {
                throw UsageFailure(parameter.name + " is missing");
            }
            *parameter.variable = *next++;
        }
        if (moreParameters.variable != nullptr) {
            moreParameters.variable->assign(next, given.end());
            if (moreParameters.variable->empty()) {
                throw UsageFailure(moreParameters.name + " is missing");
            }
        } else if (next != given.end()) {
            throw UsageFailure("the argument " + inQuotes(*next) + " is one too many");
        }
    }

    void printHelp(std::ostream& out) {
        for (const Parameter& parameter : parameters) {
            addOption(parameter.name, parameter.description)->required()->option_text(" ");
        }
        if (moreParameters.variable != nullptr) {
            addOption(moreParameters.name, moreParameters.description)
                ->required()
                ->expected(-1)
                ->option_text("...");
        }
        out << app.help();
    }
};

CommandLine::CommandLine(const std::string& name, const std::string& description)
    : state_(std::make_unique<State>()) {
    state_->app.name(name);
    state_->app.description(wrapped(description));
    state_->app.set_help_flag("-h,--help", "print this help");
    state_->app.allow_extras();
    // A path that begins with "/" is no option, on no platform.
    state_->app.allow_windows_style_options(false);
}

CommandLine::~CommandLine() = default;

void CommandLine::addFlag(const std::string& names, bool& variable,
                          const std::string& description) {
    state_->flags.emplace_back(state_->app.add_flag(names, description)->disable_flag_override(),
                               &variable);
}

void CommandLine::addValue(const std::string& names, const std::string& valueName,
                           std::optional<std::string>& variable, const std::string& description) {
    CLI::Option* option = state_->addOption(names, description);
    option->option_text(valueName)->expected(1)->take_all();
    state_->values.emplace_back(option, &variable);
}

void CommandLine::addValues(const std::string& names, const std::string& valueName,
                            std::vector<std::string>& variable, const std::string& description) {
    CLI::Option* option = state_->addOption(names, description);
    option->option_text(valueName)->expected(1, kMostValues);
    state_->manyValues = option;
    state_->manyValuesVariable = &variable;
}

void CommandLine::addOrdered(const std::string& names, const std::string& valueName,
                             std::function<void(const std::string&)> take,
                             const std::string& description) {
    CLI::Option* option = state_->addOption(names, description);
    option->option_text(valueName)->expected(1)->take_all();
    state_->ordered.emplace(option, std::move(take));
}

void CommandLine::addParameter(const std::string& name, std::string& variable,
                               const std::string& description) {
    state_->parameters.push_back({name, description, &variable});
}

void CommandLine::addParameters(const std::string& name, std::vector<std::string>& variable,
                                const std::string& description) {
    state_->moreParameters = {name, description, &variable};
}

bool CommandLine::parse(std::span<const std::string> arguments, std::ostream& out) {
    std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
    try {
        state_->app.parse(std::move(reversed));
    } catch (const CLI::CallForHelp&) {
        state_->printHelp(out);
        return false;
    } catch (const CLI::ArgumentMismatch& mismatch) {
        const std::string text = mismatch.what();
        if (const std::size_t end = text.find(" was given"); end != std::string::npos) {
            throw UsageFailure("the option --" + text.substr(0, end) + " takes no value");
        }
        throw UsageFailure("the option " + text.substr(0, text.find(':')) + " needs a value");
    } catch (const CLI::ParseError& error) {
        throw UsageFailure(error.what());
    }
    state_->fill();
    return true;
}

} // namespace corvane::skillbench
