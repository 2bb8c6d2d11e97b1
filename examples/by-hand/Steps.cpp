#include "Steps.hpp"

#include <iterator>

namespace by_hand {

Steps::Steps(const Steps& other) : PropertyContainer(other) {
    for (const auto& row : other.rows_) {
        rows_.push_back(std::make_unique<Step>(*row));
    }
}

Step& Steps::append() {
    return *rows_.emplace_back(std::make_unique<Step>());
}

void Steps::link() {
    subPropertyContainerListChanged({.updateEnclosingContainers = true});
}

void Steps::insert(std::size_t index) {
    const auto place = std::next(rows_.begin(), static_cast<std::ptrdiff_t>(index));
    Step& row = **rows_.insert(place, std::make_unique<Step>());
    row.setEnclosingPropertyContainer(*this, {});
}

void Steps::remove(std::size_t index) {
    const auto place = std::next(rows_.begin(), static_cast<std::ptrdiff_t>(index));
    const std::unique_ptr<Step> row = std::move(*place);
    rows_.erase(place);
    row->resetEnclosingPropertyContainer({});
}

void Steps::forEachSubPropertyContainer(
    const utils::core::function_ref<void(PropertyContainer&)>& callback,
    bool /*includeInvisible*/) {
    for (const auto& row : rows_) {
        callback(*row);
    }
}

void Steps::forEachLocalCrossReference(
    const utils::core::function_ref<void(workbench::bindings::CrossReferenceController&)>&
    /*callback*/,
    bool /*includeInvisible*/) {}

std::uint64_t Steps::localPropertyErrorCount() const {
    return 0;
}

void Steps::propertyNotificationRaised(const workbench::bindings::PropertyId& property) {
    raisePropertyNotification(property);
}

} // namespace by_hand
