#include <corvane/workbench/skill/SubElement.hpp>

#include <corvane/workbench/bindings/Action.hpp>

namespace corvane::workbench::skill {

SubElement::SubElement() = default;
SubElement::SubElement(const SubElement&) : SubElement() {}
SubElement& SubElement::operator=(const SubElement&) {
    return *this;
}
SubElement::~SubElement() = default;

bindings::PropertyId SubElement::displayNamePropertyId() const {
    return propertyId({0xccb30326e8d36e40U, 0x1db60786d16165a8U});
}

bindings::PropertyHandle SubElement::displayNameProperty() {
    return propertyHandle(displayNamePropertyId());
}

void SubElement::publishDisplayName() const {
    publish(displayNamePropertyId(), bindings::Action::Update, 0);
}

} // namespace corvane::workbench::skill
