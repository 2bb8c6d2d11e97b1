#include "CheckingForm.hpp"

#include <corvane/workbench/kit/Row.hpp>
#include <corvane/workbench/kit/internal/RowList.hpp>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <stdexcept>
#include <typeinfo>

namespace corvane::workbench::kit::internal {

namespace {

constexpr std::array<std::string_view, 4> kReservedByElements{"name", "UUID", "ACL", "children"};
constexpr std::array<std::string_view, 5> kAttributesOfEveryElement{"name", "UUID", "type",
                                                                    "category", "key"};

std::string inQuotes(std::string_view name) {
    return "\"" + std::string(name) + "\"";
}

std::string_view kindOf(Description::Subject subject) {
    switch (subject) {
    case Description::Subject::Attribute:
        return "attribute";
    case Description::Subject::Event:
        return "event";
    default:
        return "task";
    }
}

std::string_view nameOf(const Description& description) {
    if (description.member == nullptr) {
        return description.name;
    }
    switch (description.subject) {
    case Description::Subject::Attribute:
        return static_cast<const model::Attribute*>(description.member)->name();
    case Description::Subject::Event:
        return static_cast<const process::Event*>(description.member)->name();
    default:
        return static_cast<const process::Task*>(description.member)->name();
    }
}

// A component of a key: a name without dots, or anything in brackets.
bool isKeyComponent(std::string_view name) {
    if (!name.starts_with('[')) {
        return !name.empty() && name.find('.') == std::string_view::npos;
    }
    return name.size() > 2 && name.find(']') == name.size() - 1;
}

} // namespace

void CheckingForm::check() {
    fillIn();
    for (const auto& [name, dependency] : dependencies_) {
        if (!properties_.contains(dependency)) {
            fail(name + " depends on something that is not described as a setting");
        }
    }
    if (isWrittenAsValue_ && settingCount_ != 1) {
        fail("a row that is written as a value has exactly one setting");
    }
}

void CheckingForm::take(Description& description) {
    using enum Description::Subject;
    switch (description.subject) {
    case Setting:
    case Derived:
        takeSetting(description);
        break;
    case DisplayName:
        if (!subject().isRow()) {
            fail("only rows have a display name of their own");
        }
        if (std::exchange(hasDisplayName_, true)) {
            fail("the display name is described twice");
        }
        addDependencies("the display name", description);
        break;
    case Attribute:
    case Event:
    case Task:
        takeMember(description);
        break;
    }
}

void CheckingForm::takeWrittenAsValue() {
    if (!subject().isRow()) {
        fail("only rows are written as values");
    }
    if (settingCount_ > 0) {
        fail("that a row is written as a value is said before its setting is described");
    }
    isWrittenAsValue_ = true;
}

void CheckingForm::takeSetting(const Description& description) {
    const std::string_view name = description.name;
    checkName(name);
    if (!names_.emplace(name).second) {
        fail("two settings are named " + inQuotes(name));
    }
    if (description.displayName.empty()) {
        fail(inQuotes(name) + " needs a display name");
    }
    if (!properties_.insert(description.property).second) {
        fail("the field of " + inQuotes(name) + " belongs to another setting already");
    }
    if (description.subject == Description::Subject::Setting) {
        ++settingCount_;
    }
    addDependencies(inQuotes(name), description);
    if (description.field.kind != nullptr &&
        description.field.kind->editor() == skill::EditableProperty::Editor::Choice) {
        checkChoices(description);
    }
    if (description.rows != nullptr) {
        const std::unique_ptr<Row> row = description.rows->makeRow();
        if (!isBeingChecked(*row)) {
            CheckingForm form(RowList::subjectOf(*row), place_ + ", a row of " + inQuotes(name));
            form.enclosing_ = this;
            form.check();
        }
    }
}

// Rows may have rows of their own class, or of a class that they are in.
bool CheckingForm::isBeingChecked(const Row& row) const {
    for (const CheckingForm* form = this; form != nullptr; form = form->enclosing_) {
        const bindings::PropertyController& owner = form->owner();
        if (typeid(owner) == typeid(row)) {
            return true;
        }
    }
    return false;
}

void CheckingForm::takeMember(const Description& description) {
    const std::string_view name = nameOf(description);
    const std::string member = std::string(kindOf(description.subject)) + " " + inQuotes(name);
    if (subject().isRow()) {
        fail("rows have no members such as the " + member);
    }
    if (!isKeyComponent(name)) {
        fail(
            "the " + member +
            " cannot be named in a key: a name is not empty and has no dot, or stands in brackets");
    }
    if (description.subject == Description::Subject::Attribute &&
        std::ranges::find(kAttributesOfEveryElement, name) != kAttributesOfEveryElement.end()) {
        fail("every element has the " + member);
    }
    if (!members_.emplace(description.subject, name).second) {
        fail("the " + member + " is described twice");
    }
    addDependencies("the " + member, description);
}

void CheckingForm::checkName(std::string_view name) const {
    if (name.empty()) {
        fail("a setting needs a name");
    }
    if (name.find_first_of(".[]=") != std::string_view::npos) {
        fail("the name of a setting must not contain \".\", \"[\", \"]\" or \"=\", as " +
             inQuotes(name) + " does");
    }
    if (!subject().isRow() &&
        std::ranges::find(kReservedByElements, name) != kReservedByElements.end()) {
        fail("the name " + inQuotes(name) + " is reserved");
    }
}

void CheckingForm::checkChoices(const Description& description) const {
    const std::span<const Text> choices = description.field.choices;
    if (choices.empty()) {
        fail(inQuotes(description.name) + " needs texts to choose from");
    }
    std::set<std::string_view> texts;
    for (const Text& choice : choices) {
        if (choice.empty() || !texts.insert(choice).second) {
            fail(inQuotes(description.name) + " needs a different text for each of its choices");
        }
    }
    try {
        static_cast<void>(description.field.kind->text(description.field));
    } catch (const std::out_of_range&) {
        fail(inQuotes(description.name) + " has a value that is not one of its choices");
    }
}

void CheckingForm::addDependencies(const std::string& name, const Description& description) {
    for (const auto* list :
         {&description.behaviour->valueDependencies, &description.behaviour->stateDependencies,
          &description.behaviour->visibilityDependencies,
          &description.behaviour->memberDependencies}) {
        for (const bindings::PropertyId& dependency : *list) {
            dependencies_.emplace_back(name, dependency);
        }
    }
}

void CheckingForm::fail(const std::string& mistake) const {
    throw std::logic_error(place_ + ": " + mistake);
}

} // namespace corvane::workbench::kit::internal
