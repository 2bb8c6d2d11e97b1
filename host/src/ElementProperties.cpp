#include <corvane/workbench/host/ElementProperties.hpp>

#include <corvane/workbench/host/ElementNode.hpp>

namespace corvane::workbench::host {

void ElementProperties::recount() {
    subPropertyContainerListChanged({});
}

void ElementProperties::forEachSubPropertyContainer(
    const utils::core::function_ref<void(bindings::PropertyContainer&)>& callback,
    bool /*includeInvisible*/) {
    if (skill::Element* skillElement = element_.skillElement()) {
        callback(*skillElement);
    }
    for (std::size_t index = 0; index < element_.childCount(); ++index) {
        callback(element_.child(index).properties());
    }
}

// An element's own properties are those of the skill element.
void ElementProperties::forEachLocalCrossReference(
    const utils::core::function_ref<void(bindings::CrossReferenceController&)>&
    /*callback*/,
    bool /*includeInvisible*/) {}

std::uint64_t ElementProperties::localPropertyErrorCount() const {
    return 0;
}

// There is no property here that the skill element could mean.
void ElementProperties::propertyNotificationRaised(const bindings::PropertyId& /*property*/) {}

} // namespace corvane::workbench::host
