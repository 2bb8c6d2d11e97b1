#include "CommandLine.hpp"

#include "Failure.hpp"
#include "text.hpp"

#include <cxxopts.hpp>

#include <algorithm>
#include <cstddef>
#include <map>
#include <ostream>
#include <string_view>
#include <utility>

namespace corvane::skillbench {

namespace {

/// Under this name the parser keeps what belongs to no option.
constexpr const char* kParameters = "parameters";

/// With line breaks for a terminal of the usual width.
std::string wrapped(std::string_view text) {
    constexpr std::size_t kWidth = 80;
    std::string result;
    while (text.size() > kWidth) {
        const std::size_t space = text.rfind(' ', kWidth);
        if (space == std::string_view::npos) {
            break;
        }
        result += text.substr(0, space);
        result += '\n';
        text.remove_prefix(space + 1);
    }
    result += text;
    return result + '\n';
}

/// The long one of the names, by which the parser calls the option.
std::string longName(const std::string& names) {
    return names.substr(names.find(',') + 1);
}

[[noreturn]] void refuseOption(std::string_view option) {
    throw UsageFailure("there is no option " + inQuotes(option.substr(0, option.find('='))));
}

} // namespace

CommandLine::CommandLine(const std::string& name, const std::string& description)
    : options_(std::make_unique<cxxopts::Options>(name, wrapped(description))) {
    options_->custom_help("[OPTIONS]").allow_unrecognised_options();
    addFlag("h,help", help_, "print this help");
    options_->add_options()(kParameters, "", cxxopts::value<std::vector<std::string>>());
    options_->parse_positional(kParameters);
}

CommandLine::~CommandLine() = default;

void CommandLine::addFlag(const std::string& names, bool& variable,
                          const std::string& description) {
    options_->add_options()(names, description);
    flags_.emplace(longName(names), &variable);
}

void CommandLine::addOrdered(const std::string& names, const std::string& valueName,
                             std::function<void(const std::string&)> take,
                             const std::string& description) {
    options_->add_options()(names, description, cxxopts::value<std::string>(), valueName);
    takers_.emplace(longName(names), std::move(take));
}

void CommandLine::addValue(const std::string& names, const std::string& valueName,
                           std::optional<std::string>& variable, const std::string& description) {
    addOrdered(
        names, valueName, [&variable](const std::string& value) { variable = value; }, description);
}

void CommandLine::addValues(const std::string& names, const std::string& valueName,
                            std::vector<std::string>& variable, const std::string& description) {
    options_->add_options()(names, description, cxxopts::value<std::string>(), valueName);
    listName_ = longName(names);
    list_ = &variable;
}

void CommandLine::addParameter(const std::string& name, std::string& variable,
                               const std::string& description) {
    parameters_.push_back({name, description, [&variable](std::span<const std::string>& given) {
                               variable = given.front();
                               given = given.subspan(1);
                           }});
}

void CommandLine::addParameters(const std::string& name, std::vector<std::string>& variable,
                                const std::string& description) {
    parameters_.push_back({name, description, [&variable](std::span<const std::string>& given) {
                               variable.assign(given.begin(), given.end());
                               given = {};
                           }});
}

bool CommandLine::parse(std::span<const std::string> arguments, std::ostream& out) {
    const auto optionsEnd = std::find(arguments.begin(), arguments.end(), "--");
    const cxxopts::ParseResult parsed = parseOptions({arguments.begin(), optionsEnd});
    for (const auto& [name, variable] : flags_) {
        *variable = parsed.count(name) != 0 && parsed[name].as<bool>();
    }
    if (help_) {
        printHelp(out);
        return false;
    }
    if (!parsed.unmatched().empty()) {
        refuseOption(parsed.unmatched().front());
    }
    std::vector<std::string> listed;
    std::vector<std::string> positional;
    bool isInList = false;
    for (const cxxopts::KeyValue& given : parsed.arguments()) {
        if (given.key() != kParameters) {
            isInList = given.key() == listName_;
        } else if (given.value().size() > 1 && given.value().front() == '-') {
            refuseOption(given.value());
        }
        if (isInList) {
            listed.push_back(given.value());
        } else if (given.key() == kParameters) {
            positional.push_back(given.value());
        }
    }
    if (optionsEnd != arguments.end()) {
        positional.insert(positional.end(), std::next(optionsEnd), arguments.end());
    }
    // One value is the option's own.
    while (positional.size() < parameters_.size() && listed.size() > 1) {
        positional.insert(positional.begin(), std::move(listed.back()));
        listed.pop_back();
    }
    takeParameters(positional);
    if (list_ != nullptr) {
        *list_ = std::move(listed);
    }
    for (const cxxopts::KeyValue& given : parsed.arguments()) {
        if (const auto taker = takers_.find(given.key()); taker != takers_.end()) {
            taker->second(given.value());
        }
    }
    return true;
}

cxxopts::ParseResult CommandLine::parseOptions(std::span<const std::string> arguments) const {
    std::vector<const char*> texts{""};
    for (const std::string& argument : arguments) {
        texts.push_back(argument.c_str());
    }
    try {
        return options_->parse(static_cast<int>(texts.size()), texts.data());
    } catch (const cxxopts::exceptions::missing_argument&) {
        throw UsageFailure("the option " + arguments.back() + " needs a value");
    } catch (const cxxopts::exceptions::incorrect_argument_type&) {
        throw UsageFailure("there is a value behind an option that takes none");
    }
}

void CommandLine::takeParameters(std::span<const std::string> given) const {
    for (const Parameter& parameter : parameters_) {
        if (given.empty()) {
            throw UsageFailure(parameter.name + " is missing");
        }
        parameter.take(given);
    }
    if (!given.empty()) {
        throw UsageFailure("the argument " + inQuotes(given.front()) + " is one too many");
    }
}

void CommandLine::printHelp(std::ostream& out) const {
    constexpr std::size_t kNameColumn = 20;
    std::string names;
    std::string explanations;
    for (const Parameter& parameter : parameters_) {
        names += (names.empty() ? "" : " ") + parameter.name;
        explanations +=
            "  " + padded(parameter.name, kNameColumn) + "  " + parameter.description + '\n';
    }
    options_->positional_help(names);
    out << options_->help() << '\n' << explanations;
}

} // namespace corvane::skillbench
