#include "CommandLine.hpp"
#include "Failure.hpp"
#include "OpenConfiguration.hpp"
#include "SaveTarget.hpp"
#include "assignment.hpp"
#include "commands.hpp"
#include "text.hpp"
#include <corvane/utils/core/Uuid.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/Notifications.hpp>
#include <corvane/workbench/host/editableProperties.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>

#include <cstddef>
#include <optional>
#include <ostream>
#include <string_view>
#include <utility>
#include <vector>

namespace corvane::skillbench {

namespace {

namespace host = workbench::host;
namespace skill = workbench::skill;

/// An edit as it stands on the command line.
struct Edit {
    std::string_view option;
    std::string argument;
};

using Keys = std::vector<std::pair<utils::core::Uuid, std::string>>;

void collectKeys(const host::ElementNode& parent, Keys& keys) {
    for (std::size_t index = 0; index < parent.childCount(); ++index) {
        const host::ElementNode& child = parent.child(index);
        keys.emplace_back(child.uuid(), child.primaryKey());
        collectKeys(child, keys);
    }
}

class Editor {
public:
    explicit Editor(host::Workbench& workbench) : workbench_(workbench) {}

    void apply(const Edit& edit) const {
        if (edit.option == "--remove") {
            require(edit, workbench_.remove(edit.argument));
        } else if (edit.option == "--rename") {
            const auto [key, name] = split(edit, "KEY=NAME");
            require(edit, workbench_.rename(key, name));
        } else if (edit.option == "--move") {
            const auto [key, parent] = split(edit, "KEY=PARENT");
            require(edit, workbench_.move(key, parent));
        } else {
            set(edit);
        }
    }

private:
    using Parts = std::pair<std::string_view, std::string_view>;

    [[noreturn]] static void fail(const Edit& edit, const std::string& reason) {
        throw Failure(kProblems, std::string(edit.option) + " " + onOneLine(edit.argument) + ": " +
                                     reason + "; nothing was saved");
    }

    static void require(const Edit& edit, const host::Result<void>& result) {
        if (!result) {
            fail(edit, result.error().text);
        }
    }

    [[nodiscard]] Parts split(const Edit& edit, std::string_view form) const {
        const auto isKey = [&](std::string_view text) {
            return workbench_.findElement(text) != nullptr;
        };
        return required(edit, splitAssignment(edit.argument, isKey), form);
    }

    static Parts required(const Edit& edit, const std::optional<Parts>& parts,
                          std::string_view form) {
        if (!parts) {
            fail(edit, "the form is " + std::string(form));
        }
        return *parts;
    }

    void set(const Edit& edit) const {
        const auto isProperty = [&](std::string_view text) {
            return findProperty(workbench_, text).has_value();
        };
        const auto [address, value] =
            required(edit, splitAssignment(edit.argument, isProperty), "KEY.PROPERTY=VALUE");
        const auto property = findProperty(workbench_, address);
        if (!property) {
            fail(edit, propertyNotFound(workbench_, address));
        }
        // Setting happens outside the walk: it may change what is walked through.
        std::optional<skill::EditableProperty> found;
        const auto take = [&](const host::PropertyPlace& place) { found = place.property; };
        withProperty(*property, take);
        const auto refusal = host::callSkill(
            host::CurrentOperation::Kind::SetValue, [&] { return setValue(*found, value); },
            *property->element, property->path);
        if (!refusal.empty()) {
            fail(edit, refusal);
        }
    }

    /// Returns why the property does not take the value; nothing when it does.
    [[nodiscard]] std::string setValue(const skill::EditableProperty& property,
                                       std::string_view value) const {
        if (property.editor == skill::EditableProperty::Editor::Reference) {
            const auto set = workbench_.setReference(property, value);
            return set ? std::string() : set.error().text;
        }
        if (property.editor == skill::EditableProperty::Editor::SubElementList) {
            return "a list is set row by row, as in LIST.0.PROPERTY=VALUE";
        }
        if (!property.setText) {
            return "the property is read only";
        }
        const auto set = property.setText(utils::string::toWide(value));
        return set ? std::string() : onOneLine(set.error());
    }

    host::Workbench& workbench_;
};

void printChangedKeys(const host::Workbench& workbench, const Keys& before, std::ostream& out) {
    bool first = true;
    for (const auto& [uuid, oldKey] : before) {
        const host::ElementNode* element = workbench.findElement(uuid);
        if (element != nullptr && element->primaryKey() == oldKey) {
            continue;
        }
        if (std::exchange(first, false)) {
            out << "changed keys\n";
        }
        out << "  " << onOneLine(oldKey);
        if (element != nullptr) {
            out << " → " << onOneLine(element->primaryKey()) << '\n';
        } else {
            out << "  (removed)\n";
        }
    }
    if (first) {
        out << "no key changed\n";
    }
}

} // namespace

int edit(Arguments arguments, const Streams& streams) {
    ConfigurationArguments configurationArguments;
    SaveArguments saveArguments;
    std::vector<Edit> edits;
    const auto take = [&](std::string_view option) {
        return
            [&edits, option](const std::string& argument) { edits.push_back({option, argument}); };
    };
    CommandLine commandLine(
        "skillbench edit",
        "Edits a configuration, in the order of the options, prints what a user interface would be "
        "told and which keys changed, and saves. When an edit fails, nothing is saved. The value "
        "of a reference is a key.");
    commandLine.addOrdered("rename", "KEY=NAME", take("--rename"), "give an element another name");
    commandLine.addOrdered("move", "KEY=PARENT", take("--move"),
                           "move an element below another one; an empty PARENT is the root");
    commandLine.addOrdered("remove", "KEY", take("--remove"),
                           "remove an element with everything below it");
    commandLine.addOrdered("set", "KEY.PROPERTY=VALUE", take("--set"),
                           "set a property, or one of a row: KEY.LIST.0.PROPERTY=VALUE");
    saveArguments.addTo(commandLine);
    configurationArguments.addTo(commandLine);
    if (!commandLine.parse(arguments, streams.out)) {
        return kDone;
    }
    if (edits.empty()) {
        throw UsageFailure("there is no edit to do");
    }

    OpenConfiguration configuration(configurationArguments, streams);
    configuration.printLoadProblems(streams.err);
    const SaveTarget target(configuration, saveArguments, streams);
    std::ostream& report = target.report();
    host::Workbench& workbench = configuration.workbench();
    Keys keys;
    collectKeys(workbench.root(), keys);
    {
        host::Notifications notifications(workbench, report);
        const Editor editor(workbench);
        for (const Edit& edit : edits) {
            report << edit.option << ' ' << onOneLine(edit.argument) << '\n';
            editor.apply(edit);
            notifications.refresh();
        }
    }
    printChangedKeys(workbench, keys, report);
    target.save();
    return kDone;
}

} // namespace corvane::skillbench
