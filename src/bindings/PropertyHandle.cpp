#include <corvane/workbench/bindings/PropertyHandle.hpp>

#include <utility>

namespace corvane::workbench::bindings {

const PropertyController::PropertyState& PropertyHandle::state() const {
    return controller_ != nullptr ? controller_->propertyState(property_)
                                  : PropertyController::kDummyState;
}

bool PropertyHandle::visible() const {
    return controller_ != nullptr && controller_->propertyVisible(property_);
}

// A callback may destroy the handle that publishes, so the identifier is passed as a copy.

void PropertyHandle::publish(Action action, std::size_t index) const {
    if (controller_ != nullptr) {
        controller_->publish(PropertyId(property_), action, index);
    }
}

void PropertyHandle::publishValue(Action action, std::size_t index) const {
    if (controller_ != nullptr) {
        controller_->publishValue(PropertyId(property_), action, index);
    }
}

void PropertyHandle::publishState() const {
    if (controller_ != nullptr) {
        controller_->publishState(PropertyId(property_));
    }
}

void PropertyHandle::publishVisibility() const {
    if (controller_ != nullptr) {
        controller_->publishVisibility(PropertyId(property_));
    }
}

PropertyController::Subscription
PropertyHandle::subscribe(PropertyController::SubscriptionCallbacks callbacks) const {
    return controller_ != nullptr ? controller_->subscribe(property_, std::move(callbacks))
                                  : PropertyController::Subscription();
}

} // namespace corvane::workbench::bindings
