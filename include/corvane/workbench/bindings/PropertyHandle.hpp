#pragma once

#include <corvane/workbench/bindings/Action.hpp>
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/bindings/PropertyId.hpp>
#include <corvane/workbench/export.hpp>

#include <cstddef>
#include <functional>

namespace corvane::workbench::bindings {

/// A property together with the controller that owns it.
///
/// What user-interface code holds to show, observe and publish one property. A plain value, copied
/// freely; PropertyController::propertyHandle makes it. Must not be used after the controller is
/// gone.
///
/// Every operation forwards to the controller. Without one, a property has the success state and is
/// invisible (where a controller calls an unknown property visible: nothing can be shown without a
/// controller), publications do nothing, and subscriptions are empty.
class CORVANE_WORKBENCH_EXPORT PropertyHandle {
public:
    /// Restricts the constructor that takes it to the friends, who can name its one value.
    struct InternalConstructorTag {
        explicit InternalConstructorTag() = default;
    };

    PropertyHandle() noexcept = default;

    /// @pre there is a controller
    [[nodiscard]] PropertyController& controller() const noexcept { return *controller_; }
    /// Names the property; empty in a handle made by default.
    [[nodiscard]] const PropertyId& property() const noexcept { return property_; }
    /// Whether there are both a controller and an identifier that is not empty.
    [[nodiscard]] explicit operator bool() const noexcept {
        return controller_ != nullptr && static_cast<bool>(property_);
    }

    /// Configures. How long the reference is good: see PropertyController::propertyState.
    [[nodiscard]] const PropertyController::PropertyState& state() const;
    /// Configures.
    [[nodiscard]] bool visible() const;
    /// Does not configure.
    void publish(Action action, std::size_t index) const;
    /// Does not configure.
    void publishValue(Action action, std::size_t index) const;
    /// Configures.
    void publishState() const;
    /// Configures.
    void publishVisibility() const;
    /// Does not configure. Without a controller the callbacks are destroyed.
    [[nodiscard]] PropertyController::Subscription
    subscribe(PropertyController::SubscriptionCallbacks callbacks) const;

private:
    friend class PropertyController;
    static constexpr InternalConstructorTag kInternalConstructor{};

    PropertyHandle(InternalConstructorTag, std::reference_wrapper<PropertyController> controller,
                   PropertyId property) noexcept
        : controller_(&controller.get()), property_(property) {}

    PropertyController* controller_ = nullptr;
    PropertyId property_;
};

} // namespace corvane::workbench::bindings
