#include "FakeElement.hpp"

#include <corvane/workbench/model/internal/ElementReferenceData.hpp>

#include <utility>

namespace corvane::tests {

using namespace workbench;
using utils::core::function_ref;

std::size_t FakeChildren::elementCount() const {
    return elements.size();
}

const model::Element& FakeChildren::elementAt(std::size_t index) const {
    return *elements.at(index);
}

FakeElement::~FakeElement() = default;

std::vector<std::string> FakeElement::takeCalls() const {
    return std::exchange(calls, {});
}

utils::string::BasicStringView<char> FakeElement::nameImpl() const {
    calls.emplace_back("nameImpl");
    return elementName;
}

std::string FakeElement::primaryKeyImpl() const {
    calls.emplace_back("primaryKeyImpl");
    return key;
}

utils::core::Uuid FakeElement::uuidImpl() const {
    calls.emplace_back("uuidImpl");
    return identifier;
}

std::wstring FakeElement::typeImpl() const {
    calls.emplace_back("typeImpl");
    return typeText;
}

model::ElementCategory FakeElement::categoryImpl() const {
    calls.emplace_back("categoryImpl");
    return elementCategory;
}

bool FakeElement::isInvisibleRootImpl() const {
    calls.emplace_back("isInvisibleRootImpl");
    return invisibleRoot;
}

const model::Element*
FakeElement::findAncestorImpl(const skill::Element::Class& elementClass) const {
    calls.emplace_back("findAncestorImpl");
    askedClass = &elementClass;
    return ancestor;
}

bool FakeElement::isDescendentOfImpl(const model::Element& other) const {
    calls.emplace_back("isDescendentOfImpl");
    askedElement = &other;
    return descendent;
}

bool FakeElement::forEachAttributeImpl(
    const function_ref<bool(const model::Attribute&)>& callback) const {
    calls.emplace_back("forEachAttributeImpl");
    for (const model::Attribute& attribute : attributeList) {
        if (callback(attribute)) {
            return true;
        }
    }
    return false;
}

bool FakeElement::forEachEventImpl(const function_ref<bool(const process::Event&)>& callback,
                                   bool forwardedFlag) const {
    calls.emplace_back(forwardedFlag ? "forEachEventImpl(true)" : "forEachEventImpl(false)");
    for (const process::Event& event : eventList) {
        if (callback(event)) {
            return true;
        }
    }
    return false;
}

bool FakeElement::forEachTaskImpl(const function_ref<bool(const process::Task&)>& callback) const {
    calls.emplace_back("forEachTaskImpl");
    for (const process::Task& task : taskList) {
        if (callback(task)) {
            return true;
        }
    }
    return false;
}

model::ChildElementAccessor FakeElement::childElementsImpl() const {
    calls.emplace_back("childElementsImpl");
    return children;
}

const model::Element* FakeElement::childElementImpl(std::string_view name) const {
    calls.push_back("childElementImpl(" + std::string(name) + ")");
    for (const model::Element* const child : children.elements) {
        if (child->name() == name) {
            return child;
        }
    }
    return nullptr;
}

const model::Element* FakeElement::parentElementImpl() const {
    calls.emplace_back("parentElementImpl");
    return parent;
}

skill::Element* FakeElement::skillElementImpl() const {
    calls.emplace_back("skillElementImpl");
    return skillElement;
}

model::internal::ElementReferenceData
FakeElement::referenceDataImpl(std::optional<std::string> memberName) const {
    calls.push_back("referenceDataImpl(" + memberName.value_or("") + ")");
    return {proxy, std::string(), std::move(memberName)};
}

} // namespace corvane::tests
