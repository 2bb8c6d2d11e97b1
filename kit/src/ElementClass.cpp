#include <corvane/workbench/kit/ElementClass.hpp>

#include "translationContext.hpp"

#include <stdexcept>

namespace corvane::workbench::kit {

BasicElementClass::BasicElementClass(const ClassDescription& description)
    : description_(description) {}

std::string_view BasicElementClass::id() const {
    return description_.id;
}

utils::core::Uuid BasicElementClass::uuid() const {
    return description_.uuid;
}

std::wstring BasicElementClass::displayName() const {
    return internal::translated(description_.displayName);
}

std::wstring BasicElementClass::description() const {
    return internal::translated(description_.description);
}

model::ElementCategory BasicElementClass::category() const {
    return description_.category;
}

bool BasicElementClass::allowChildElement(const Class& childClass) const {
    return description_.children.test(childClass.category());
}

std::string BasicElementClass::defaultName() const {
    const Text name =
        description_.defaultName.empty() ? description_.displayName : description_.defaultName;
    return std::string(std::string_view(name));
}

void BasicElementClass::checkClass() const {
    const auto require = [&](bool condition, const char* mistake) {
        if (!condition) {
            throw std::logic_error("the element class \"" + std::string(id()) + "\" " + mistake);
        }
    };
    require(!description_.id.empty(), "needs an id");
    require(!description_.uuid.isNil(), "needs a UUID that is not nil");
    require(!description_.displayName.empty(), "needs a display name");
    require(!description_.description.empty(), "needs a description");
}

} // namespace corvane::workbench::kit
