#include "Steps.hpp"

#include <iterator>

namespace first_skill {

Steps::Steps(const Steps& other) : PropertyContainer(other) {
    for (const auto& row : other.rows_) {
        insert(size(), *row);
    }
}

Step& Steps::insert(std::size_t index, const Step& step) {
    const auto place = std::next(rows_.begin(), static_cast<std::ptrdiff_t>(index));
    Step& row = **rows_.insert(place, std::make_unique<Step>(step));
    row.setEnclosingPropertyContainer(*this, {});
    return row;
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

} // namespace first_skill
