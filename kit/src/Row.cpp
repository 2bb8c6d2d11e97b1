#include <corvane/workbench/kit/Row.hpp>

#include "forms/ChangeForm.hpp"
#include "forms/ConfiguringForm.hpp"
#include "forms/ListingForm.hpp"
#include "forms/RowForms.hpp"
#include <corvane/workbench/kit/internal/RowList.hpp>

#include <stdexcept>
#include <utility>

namespace corvane::workbench::kit {

const internal::Subject::Type Row::kSubjectType{
    .describe = [](bindings::PropertyController& controller,
                   Form& form) { static_cast<Row&>(controller).describe(form); },
    .publishMembers = nullptr};

Row::~Row() = default;

std::wstring Row::displayName() const {
    return internal::NameForm(subject()).name();
}

void Row::forEachEditableProperty(
    utils::core::function_ref<void(const skill::EditableProperty&)> callback) {
    internal::ListingForm(subject(), callback).list();
}

void Row::configureProperties(PropertyConfigurationContext& context) {
    for (auto& trigger : internal::ConfiguringForm(subject(), context).configure()) {
        triggers_.push_back(subscribe(trigger.property, {.value = std::move(trigger.action)}));
    }
}

// A description changes nothing; it is not const so that editors can be made from it.
internal::Subject Row::subject() const noexcept {
    return {.controller = const_cast<Row*>(this), .type = &kSubjectType};
}

bindings::PropertyController& Row::ownerOfList() const {
    if (list_ == nullptr) {
        throw std::logic_error("the row is in no list");
    }
    return list_->owner();
}

void Row::publishChange(const bindings::PropertyId& property) {
    internal::publishChange(subject(), property);
}

} // namespace corvane::workbench::kit
