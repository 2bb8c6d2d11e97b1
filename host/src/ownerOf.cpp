#include "ownerOf.hpp"

#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/host/ElementProperties.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

namespace corvane::workbench::host {

const ElementNode* ownerOf(const model::internal::BasicElementReference& reference) noexcept {
    const bindings::PropertyContainer* container = reference.referringController();
    while (container != nullptr) {
        if (const auto* properties = dynamic_cast<const ElementProperties*>(container)) {
            return &properties->element();
        }
        container = container->enclosingPropertyContainer();
    }
    return nullptr;
}

} // namespace corvane::workbench::host
