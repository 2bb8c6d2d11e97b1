#include "CommandLine.hpp"
#include "Failure.hpp"
#include "OpenConfiguration.hpp"
#include "commands.hpp"
#include "text.hpp"
#include <corvane/workbench/host/editableProperties.hpp>
#include <corvane/workbench/host/referenceProperty.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <utility>
#include <vector>

namespace corvane::skillbench {

namespace {

namespace host = workbench::host;

class UsePrinter {
public:
    UsePrinter(std::vector<host::ReferenceUse> uses, std::ostream& out)
        : uses_(std::move(uses)), out_(out) {}

    /// Prints what an element and those below it hold.
    void printBelow(const host::ElementNode& element) {
        const auto print = [&](const host::PropertyPlace& place) {
            const auto isPlace = [&](const host::ReferenceUse& use) {
                return host::isProperty(*use.reference, place.property);
            };
            const auto use = std::find_if(uses_.begin(), uses_.end(), isPlace);
            if (use != uses_.end()) {
                printUse(element.primaryKey() + "." + place.path, *use);
                uses_.erase(use);
            }
        };
        forEachProperty(element, print);
        for (std::size_t index = 0; index < element.childCount() && !uses_.empty(); ++index) {
            printBelow(element.child(index));
        }
    }

    /// Prints the references that no property shows.
    void printRest() const {
        for (const host::ReferenceUse& use : uses_) {
            printUse(use.owner != nullptr ? use.owner->primaryKey() : "(no element)", use);
        }
    }

private:
    void printUse(const std::string& place, const host::ReferenceUse& use) const {
        out_ << onOneLine(place) << " → " << onOneLine(use.reference->data().primaryKey()) << '\n';
    }

    std::vector<host::ReferenceUse> uses_;
    std::ostream& out_;
};

} // namespace

int references(Arguments arguments, const Streams& streams) {
    ConfigurationArguments configurationArguments;
    std::string key;
    CommandLine commandLine("skillbench references",
                            "Lists who refers to an element or to its attributes, events and "
                            "tasks: each property and the key that it holds.");
    configurationArguments.addTo(commandLine);
    commandLine.addParameter("KEY", key, "the key of the element");
    if (!commandLine.parse(arguments, streams.out)) {
        return kDone;
    }

    const OpenConfiguration configuration(configurationArguments, streams);
    configuration.printLoadProblems(streams.err);
    if (!configuration.loaded()) {
        return kProblems;
    }
    const host::Workbench& workbench = configuration.workbench();
    const host::ElementNode* element = workbench.findElement(key);
    if (element == nullptr) {
        throw Failure(kProblems, "there is no element " + inQuotes(key));
    }
    std::vector<host::ReferenceUse> uses = workbench.referencesTo(*element);
    if (uses.empty()) {
        streams.out << "nothing refers to " << onOneLine(keyText(key)) << '\n';
    }
    UsePrinter printer(std::move(uses), streams.out);
    printer.printBelow(workbench.root());
    printer.printRest();
    return kDone;
}

} // namespace corvane::skillbench
