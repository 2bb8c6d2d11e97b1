#include "CommandLine.hpp"
#include "ExitCode.hpp"
#include "OpenConfiguration.hpp"
#include "commands.hpp"
#include "editableProperties.hpp"
#include "showJson.hpp"
#include "text.hpp"
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <cstddef>
#include <ostream>

namespace corvane::skillbench {

namespace {

namespace host = workbench::host;
namespace skill = workbench::skill;

class TreePrinter {
public:
    explicit TreePrinter(std::ostream& out) : out_(out) {}

    void printElement(const host::ElementNode& element) {
        indent() << onOneLine(element.name()) << "  (" << onOneLine(element.type()) << ", "
                 << countText(element.properties().propertyErrorCount(), "error") << ")\n";
        ++level_;
        const auto print = [&](const skill::EditableProperty& property) {
            printProperty(property);
        };
        element.skillElement()->forEachEditableProperty(print);
        printChildren(element);
        --level_;
    }

    void printChildren(const host::ElementNode& element) {
        for (std::size_t index = 0; index < element.childCount(); ++index) {
            printElement(element.child(index));
        }
    }

private:
    std::ostream& indent() { return out_ << std::string(2 * level_, ' '); }

    void printProperty(const skill::EditableProperty& property) {
        const auto& state = property.property.state();
        const bool visible = property.property.visible();
        indent() << (!visible ? "hidden "
                     : state  ? "ok     "
                              : "error  ")
                 << onOneLine(property.displayName) << ':';
        if (const std::string value = valueText(property); !value.empty()) {
            out_ << ' ' << value;
        }
        if (!state) {
            out_ << "  <- " << onOneLine(state.error());
        }
        out_ << '\n';
        if (property.forEachSubElement) {
            std::size_t index = 0;
            const auto print = [&](skill::SubElement& row) { printRow(row, index++); };
            level_ += 4;
            property.forEachSubElement(print);
            level_ -= 4;
        }
    }

    void printRow(skill::SubElement& row, std::size_t index) {
        indent() << index << ": " << onOneLine(row.displayName()) << "  ("
                 << countText(row.propertyErrorCount(), "error") << ")\n";
        ++level_;
        const auto print = [&](const skill::EditableProperty& property) {
            printProperty(property);
        };
        row.forEachEditableProperty(print);
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
        showJson(configuration, streams.out);
    } else {
        printText(configuration, streams);
    }
    return configuration.complete() ? kDone : kProblems;
}

} // namespace corvane::skillbench
