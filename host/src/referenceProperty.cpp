#include <corvane/workbench/host/referenceProperty.hpp>

#include <corvane/workbench/host/Workbench.hpp>
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

std::string placeOf(const model::internal::BasicElementReference& reference,
                    const Workbench& workbench) {
    const ElementNode* owner = workbench.ownerOf(reference);
    if (owner == nullptr) {
        return "(no element)";
    }
    const std::string path = propertyPath(reference, *owner);
    return path.empty() ? owner->primaryKey() : owner->primaryKey() + "." + path;
}

// The identifier is made from the reference's address, so that there is no other property of it.
bool isProperty(const model::internal::BasicElementReference& reference,
                const skill::EditableProperty& property) {
    return property.property && property.property.property() == reference.propertyId();
}

} // namespace corvane::workbench::host
