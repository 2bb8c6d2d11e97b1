#include "CommandLine.hpp"
#include "ExitCode.hpp"
#include "OpenConfiguration.hpp"
#include "commands.hpp"
#include "editableProperties.hpp"
#include "showJson.hpp"
#include "text.hpp"
#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <cstddef>
#include <ostream>
#include <sstream>
#include <string>

namespace corvane::skillbench {

namespace {

namespace host = workbench::host;
namespace skill = workbench::skill;

/// Prints whole lines: a skill that fails while one is being made does not stop in the middle of
/// it.
class TreePrinter {
public:
    explicit TreePrinter(std::ostream& out) : out_(out) {}

    void printElement(const host::ElementNode& element) {
        print(onOneLine(element.name()) + "  (" + onOneLine(element.type()) + ", " +
              countText(element.properties().propertyErrorCount(), "error") + ")");
        ++level_;
        const auto printOwn = [&](const skill::EditableProperty& property) {
            printProperty(element, property, {});
        };
        host::callSkill(
            host::CurrentOperation::Kind::ListProperties,
            [&] { element.skillElement()->forEachEditableProperty(printOwn); }, element);
        printChildren(element);
        --level_;
    }

    void printChildren(const host::ElementNode& element) {
        for (std::size_t index = 0; index < element.childCount(); ++index) {
            printElement(element.child(index));
        }
    }

private:
    void print(const std::string& line) const {
        out_ << std::string(2 * level_, ' ') + line + '\n';
    }

    void printProperty(const host::ElementNode& element, const skill::EditableProperty& property,
                       const std::string& prefix) {
        const std::string path = prefix + property.name;
        const PropertyPlace place{element, property, path, nullptr};
        const std::string value = valueText(place);
        const auto& state = stateOf(place);
        print(std::string(!isVisible(place) ? "hidden "
                          : state           ? "ok     "
                                            : "error  ") +
              onOneLine(property.displayName) + ':' + (value.empty() ? "" : " ") + value +
              (state ? std::string() : "  <- " + onOneLine(state.error())));
        if (property.forEachSubElement) {
            std::size_t index = 0;
            const auto printEach = [&](skill::SubElement& row) {
                printRow(element, row, path, index++);
            };
            level_ += 4;
            property.forEachSubElement(printEach);
            level_ -= 4;
        }
    }

    void printRow(const host::ElementNode& element, skill::SubElement& row,
                  const std::string& listPath, std::size_t index) {
        print(std::to_string(index) + ": " + onOneLine(row.displayName()) + "  (" +
              countText(row.propertyErrorCount(), "error") + ")");
        ++level_;
        const std::string prefix = listPath + "." + std::to_string(index) + ".";
        const auto printOwn = [&](const skill::EditableProperty& property) {
            printProperty(element, property, prefix);
        };
        row.forEachEditableProperty(printOwn);
        --level_;
    }

    std::ostream& out_;
    std::size_t level_ = 0;
};

void printText(const OpenConfiguration& configuration, const Streams& streams) {
    configuration.printLoadProblems(streams.err);
    if (configuration.loaded()) {
        const host::Workbench& workbench = configuration.workbench();
        streams.out << pathText(configuration.file()) << "  ("
                    << countText(workbench.elementCount(), "element") << ", "
                    << countText(workbench.root().properties().propertyErrorCount(), "error")
                    << ")\n";
        TreePrinter(streams.out).printChildren(workbench.root());
    }
}

} // namespace

int show(Arguments arguments, const Streams& streams) {
    ConfigurationArguments configurationArguments;
    bool json = false;
    CommandLine commandLine(
        "skillbench show",
        "Prints the tree of a configuration: each element with the number of errors at and below "
        "it, each property with its state (ok, error or hidden), name and value.");
    commandLine.addFlag("json", json, "machine-readable output");
    configurationArguments.addTo(commandLine);
    if (!commandLine.parse(arguments, streams.out)) {
        return kDone;
    }

    const OpenConfiguration configuration(configurationArguments, streams);
    if (json) {
        // A program gets all or nothing.
        std::ostringstream whole;
        showJson(configuration, whole);
        streams.out << whole.view();
    } else {
        printText(configuration, streams);
    }
    return configuration.complete() ? kDone : kProblems;
}

} // namespace corvane::skillbench
