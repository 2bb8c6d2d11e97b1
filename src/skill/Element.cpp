#include <corvane/workbench/skill/Element.hpp>

#include <corvane/utils/json/decoder/Name.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>
#include <corvane/workbench/model/ChildElementAccessor.hpp>
#include <corvane/workbench/model/Element.hpp>
#include <corvane/workbench/skill/internal/AbstractElementSupervisor.hpp>

namespace corvane::workbench::skill {

Element::Element() = default;
Element::Element(const Element&) : Element() {}
Element& Element::operator=(const Element&) {
    return *this;
}
Element::~Element() = default;

const Element::Class& Element::elementClass() const {
    return supervisor_->elementClass();
}

utils::string::BasicStringView<char> Element::name() const {
    return element().name();
}
utils::core::Uuid Element::uuid() const {
    return element().uuid();
}
std::string Element::primaryKey() const {
    return element().primaryKey();
}

const model::Element& Element::element() const {
    return supervisor_->element();
}
const model::Element& Element::parentElement() const {
    return *element().parentElement();
}
model::ChildElementAccessor Element::childElements() const {
    return element().childElements();
}
void Element::publishElementMembers() const {
    supervisor_->publishElementMembers();
}

void Element::load(utils::json::decoder::Object& object, config::Context&) {
    for (auto&& member : object) {
        config::throwUnknownParameterError(member.name);
    }
}

void Element::save(utils::json::encoder::Object&) const {}
void Element::makeDefault() {}

bool Element::forEachAttribute(
    const utils::core::function_ref<bool(const model::Attribute&)>&) const {
    return false;
}
bool Element::forEachEvent(const utils::core::function_ref<bool(const process::Event&)>&) const {
    return false;
}
bool Element::forEachTask(const utils::core::function_ref<bool(const process::Task&)>&) const {
    return false;
}

std::optional<utils::core::Uuid> Element::importId() {
    return std::nullopt;
}
void Element::importMerge(const model::Element&) {}
bool Element::preserveExistingNameOnImport() const {
    return false;
}

Element::Class::Class() = default;
Element::Class::Class(const Class&) {}
Element::Class& Element::Class::operator=(const Class&) {
    return *this;
}
Element::Class::~Class() = default;

bool Element::Class::allowChildElement(const Class&) const {
    return false;
}

} // namespace corvane::workbench::skill
