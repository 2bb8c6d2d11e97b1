#include <corvane/workbench/kit/Element.hpp>

#include "forms/ChangeForm.hpp"
#include "forms/ConfiguringForm.hpp"
#include "forms/InitialForm.hpp"
#include "forms/ListingForm.hpp"
#include "forms/LoadingForm.hpp"
#include "forms/MemberForm.hpp"
#include "forms/SavingForm.hpp"

#include <utility>

namespace corvane::workbench::kit {

const internal::Subject::Type Element::kSubjectType{
    .describe = [](bindings::PropertyController& controller,
                   Form& form) { static_cast<Element&>(controller).describe(form); },
    .publishMembers =
        [](bindings::PropertyController& controller) {
            static_cast<Element&>(controller).publishElementMembers();
        }};

Element::~Element() = default;

void Element::forEachEditableProperty(
    utils::core::function_ref<void(const skill::EditableProperty&)> callback) {
    internal::ListingForm(subject(), callback).list();
}

void Element::configureProperties(PropertyConfigurationContext& context) {
    for (auto& trigger : internal::ConfiguringForm(subject(), context).configure()) {
        triggers_.push_back(subscribe(trigger.property, {.value = std::move(trigger.action)}));
    }
}

void Element::load(utils::json::decoder::Object& object, config::Context& context) {
    internal::LoadingForm(subject(), context).load(object);
}

void Element::save(utils::json::encoder::Object& object) const {
    internal::SavingForm(subject()).save(object);
}

void Element::makeDefault() {
    internal::InitialForm(subject()).makeDefault();
}

bool Element::forEachAttribute(
    const utils::core::function_ref<bool(const model::Attribute&)>& callback) const {
    return internal::MemberForm<model::Attribute>(subject(), callback).visit();
}

bool Element::forEachEvent(
    const utils::core::function_ref<bool(const process::Event&)>& callback) const {
    return internal::MemberForm<process::Event>(subject(), callback).visit();
}

bool Element::forEachTask(
    const utils::core::function_ref<bool(const process::Task&)>& callback) const {
    return internal::MemberForm<process::Task>(subject(), callback).visit();
}

// A description changes nothing; it is not const so that editors can be made from it.
internal::Subject Element::subject() const noexcept {
    return {.controller = const_cast<Element*>(this), .type = &kSubjectType};
}

void Element::publishChange(const bindings::PropertyId& property) {
    internal::publishChange(subject(), property);
}

} // namespace corvane::workbench::kit
