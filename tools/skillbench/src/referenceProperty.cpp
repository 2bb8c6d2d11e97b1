#include "referenceProperty.hpp"

#include "editableProperties.hpp"
#include <corvane/workbench/model/internal/BasicElementReference.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>

namespace corvane::skillbench {

std::string propertyPath(const workbench::model::internal::BasicElementReference& reference,
                         const workbench::host::ElementNode& owner) {
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
bool isProperty(const workbench::model::internal::BasicElementReference& reference,
                const workbench::skill::EditableProperty& property) {
    return property.property && property.property.property() == reference.propertyId();
}

} // namespace corvane::skillbench
