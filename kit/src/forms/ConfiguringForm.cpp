#include "ConfiguringForm.hpp"

#include <corvane/workbench/kit/internal/fieldId.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <iterator>
#include <string>
#include <string_view>
#include <utility>

namespace corvane::workbench::kit::internal {

namespace {

// Small enough for a std::function to hold without an allocation; likewise the next one.
struct KindRule {
    const SettingKind* kind;
    void* address;

    State operator()() const { return kind->check({.address = address}); }
};

struct OptionalKindRule {
    const SettingKind* kind;
    void* address;

    State operator()() const {
        const Field field{.address = address};
        return kind->isEmpty(field) ? State() : kind->check(field);
    }
};

std::function<State()> stateOf(Description& description) {
    auto& rules = description.behaviour->rules;
    const Field& field = description.field;
    if (field.kind != nullptr && field.kind->checks()) {
        // What is required comes first, so that an empty reference is told by the skill's words.
        std::function<State()> rule =
            description.behaviour->isOptional
                ? std::function<State()>(OptionalKindRule{field.kind, field.address})
                : std::function<State()>(KindRule{field.kind, field.address});
        rules.insert(rules.begin() + (description.behaviour->isRequired ? 1 : 0), std::move(rule));
    }
    if (rules.size() < 2) {
        return rules.empty() ? std::function<State()>() : std::move(rules.front());
    }
    return [rules = std::vector(std::make_move_iterator(rules.begin()),
                                std::make_move_iterator(rules.end()))] {
        for (const auto& rule : rules) {
            if (State state = rule(); !state) {
                return state;
            }
        }
        return State();
    };
}

} // namespace

std::vector<ConfiguringForm::Trigger> ConfiguringForm::configure() {
    fillIn();
    if (subject().isRow() && !hasDisplayName_ && first_) {
        configureDisplayName({&first_, &first_ + 1});
    }
    if (!memberDependencies_.empty()) {
        addTrigger(".members", memberDependencies_,
                   [subject = subject()] { subject.type->publishMembers(*subject.controller); });
    }
    return std::move(triggers_);
}

void ConfiguringForm::addTrigger(const std::string& name, bindings::PropertyIdRange dependencies,
                                 std::function<void()> action) {
    const bindings::PropertyId property = nameId(name);
    context_.configure(property, {.valueDependencies = dependencies});
    triggers_.push_back({.property = property, .action = std::move(action)});
}

void ConfiguringForm::take(Description& description) {
    using enum Description::Subject;
    if (description.subject == DisplayName) {
        hasDisplayName_ = true;
        configureDisplayName(description.behaviour->valueDependencies);
        return;
    }
    if (description.subject != Setting && description.subject != Derived) {
        memberDependencies_.insert(memberDependencies_.end(),
                                   description.behaviour->memberDependencies.begin(),
                                   description.behaviour->memberDependencies.end());
        return;
    }
    if (!first_ && description.subject == Setting) {
        first_ = description.property;
    }
    if (subject().isRow() && description.subject == Setting) {
        description.behaviour->raisedProperties.push_back(rowChangedId());
    }
    std::function<State()> state = stateOf(description);
    if (description.rows != nullptr) {
        description.rows->link();
        description.behaviour->classified.subPropertyContainer = description.rows;
        if (state) {
            // A rule of a list looks at its rows, whose changes publish the list.
            description.behaviour->stateDependencies.push_back(description.property);
        }
    }
    const bool behaves = state || description.behaviour->visibility ||
                         !description.behaviour->valueDependencies.empty() ||
                         !description.behaviour->raisedProperties.empty() ||
                         description.behaviour->classified.subPropertyContainer != nullptr ||
                         description.behaviour->classified.crossReferenceController != nullptr;
    if (behaves) {
        context_.configure(description.property,
                           {.valueDependencies = description.behaviour->valueDependencies,
                            .state = std::move(state),
                            .stateDependencies = description.behaviour->stateDependencies,
                            .visibility = std::move(description.behaviour->visibility),
                            .visibilityDependencies = description.behaviour->visibilityDependencies,
                            .raisedProperties = description.behaviour->raisedProperties},
                           description.behaviour->classified);
    }
    std::size_t index = 0;
    for (std::function<void()>& action : description.behaviour->actions) {
        // No setting has a dot in its name.
        addTrigger(".then." + std::string(std::string_view(description.name)) + '.' +
                       std::to_string(index++),
                   {&description.property, &description.property + 1}, std::move(action));
    }
}

void ConfiguringForm::configureDisplayName(bindings::PropertyIdRange dependencies) {
    const auto& row = static_cast<const skill::SubElement&>(owner());
    context_.configure(row.displayNamePropertyId(), {.valueDependencies = dependencies});
}

} // namespace corvane::workbench::kit::internal
