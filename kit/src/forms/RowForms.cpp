#include "RowForms.hpp"

#include <corvane/workbench/kit/Row.hpp>

#include <utility>

namespace corvane::workbench::kit::internal {

std::wstring NameForm::name() {
    fillIn();
    if (name_) {
        return name_();
    }
    return first_.kind != nullptr ? first_.kind->text(first_) : std::wstring();
}

void NameForm::take(Description& description) {
    if (description.subject == Description::Subject::DisplayName) {
        name_ = std::move(description.behaviour->derivedText);
    } else if (description.subject == Description::Subject::Setting && first_.kind == nullptr) {
        first_ = description.field;
    }
}

void ProposingForm::propose(Row& row, std::size_t index) {
    fillIn();
    if (proposal_) {
        proposal_(row, index);
    }
}

void ProposingForm::take(Description& description) {
    if (description.rows == &rows_) {
        proposal_ = std::move(description.behaviour->proposal);
    }
}

void RecheckingForm::recheck() {
    fillIn();
    for (const bindings::PropertyId& property : properties_) {
        owner().publishState(property);
    }
}

void RecheckingForm::take(Description& description) {
    if (description.subject == Description::Subject::Setting) {
        properties_.push_back(description.property);
    }
}

} // namespace corvane::workbench::kit::internal
