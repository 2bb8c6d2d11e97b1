#include "ChangeForm.hpp"

#include <corvane/workbench/bindings/Action.hpp>

#include <algorithm>
#include <iterator>

namespace corvane::workbench::kit::internal {

void ChangeForm::follow() {
    fillIn();
    for (const auto& action : actions_) {
        action();
    }
    if (membersDepend_) {
        subject().type->publishMembers(owner());
    }
}

void ChangeForm::take(Description& description) {
    if (description.subject == Description::Subject::Setting) {
        if (description.property == property_) {
            auto& actions = description.behaviour->actions;
            actions_.assign(std::make_move_iterator(actions.begin()),
                            std::make_move_iterator(actions.end()));
        }
    } else {
        membersDepend_ = membersDepend_ ||
                         std::ranges::find(description.behaviour->memberDependencies, property_) !=
                             description.behaviour->memberDependencies.end();
    }
}

void publishChange(const Subject& subject, const bindings::PropertyId& property) {
    subject.controller->publish(property, bindings::Action::Update, 0);
    ChangeForm(subject, property).follow();
}

} // namespace corvane::workbench::kit::internal
