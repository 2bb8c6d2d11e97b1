#include <corvane/workbench/host/referenceProperty.hpp>

#include <corvane/workbench/host/editableProperties.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>

namespace corvane::workbench::host {

std::string propertyPath(const model::internal::BasicElementReference& reference,
                         const ElementNode& owner) {
    std::string result;
    const auto look = [&](const PropertyPlace& place) {
        if (isProperty(reference, place.property)) {
            result = place.path;
        }
    };
    forEachProperty(owner, look);
    return result;
}

// The identifier is made from the reference's address, so that there is no other property of it.
bool isProperty(const model::internal::BasicElementReference& reference,
                const skill::EditableProperty& property) {
    return property.property && property.property.property() == reference.propertyId();
}

} // namespace corvane::workbench::host
