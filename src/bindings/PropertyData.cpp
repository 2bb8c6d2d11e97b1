#include <corvane/workbench/bindings/PropertyData.hpp>

#include <algorithm>
#include <atomic>

namespace corvane::workbench::bindings {

namespace {

constexpr std::uint32_t kValueBit = 1;
constexpr std::uint32_t kStateBit = 2;
constexpr std::uint32_t kVisibilityBit = 4;

constinit std::atomic<std::size_t> nextSubscriptionId = 0;

bool sameState(const PropertyController::PropertyState& a,
               const PropertyController::PropertyState& b) {
    return a.has_value() == b.has_value() && (a.has_value() || a.error() == b.error());
}

} // namespace

/// Sets publishing flags for its lifetime.
class PropertyController::PropertyData::Publishing {
public:
    Publishing(std::uint32_t& flags, std::uint32_t mask) noexcept : flags_(flags), before_(flags) {
        flags_ |= mask;
    }
    Publishing(const Publishing&) = delete;
    Publishing& operator=(const Publishing&) = delete;
    ~Publishing() { flags_ = before_; }

    [[nodiscard]] bool isOutermost(std::uint32_t bit) const noexcept {
        return (before_ & bit) == 0;
    }

private:
    std::uint32_t& flags_;
    const std::uint32_t before_;
};

/// What each subscriber is told.
struct PropertyController::PropertyData::Notification {
    bool value = false;
    Action action = Action::Update;
    std::size_t index = 0;
    bool state = false;
    bool visibility = false;
};

void PropertyController::PropertyData::configure(PropertyConfiguration&& configuration,
                                                 const ClassifiedProperty& classified) {
    internal::PropertyFunction<bool> visibility(std::move(configuration.visibility));
    internal::PropertyFunction<PropertyState> state(std::move(configuration.state));
    internal::SparseVector<PropertyId> raised(configuration.raisedProperties.begin(),
                                              configuration.raisedProperties.end());
    // What is replaced is destroyed last, when this object is as it will stay.
    std::swap(visibilityFunction_, visibility);
    std::swap(stateFunction_, state);
    std::swap(raisedProperties_, raised);
    subPropertyContainer_ = classified.subPropertyContainer;
    crossReferenceController_ = classified.crossReferenceController;
}

void PropertyController::PropertyData::addDependentProperty(Dependency&& dependency) {
    const std::span<Dependency> dependents = dependentProperties_.items();
    const auto existing = std::ranges::find(dependents, dependency.property, &Dependency::property);
    if (existing == dependents.end()) {
        dependentProperties_.append(std::move(dependency));
        return;
    }
    existing->updatesValue |= dependency.updatesValue;
    existing->updatesState |= dependency.updatesState;
    existing->updatesVisibility |= dependency.updatesVisibility;
}

void PropertyController::PropertyData::postConfigure() {
    const bool visibilityChanged =
        storeVisibility(visibilityFunction_ ? visibilityFunction_() : true);
    const bool stateChanged =
        storeState(stateFunction_ && cachedVisibility_ ? stateFunction_() : PropertyState());
    if (!visibilityChanged && !stateChanged) {
        return;
    }
    const Publishing publishing(publishingFlags_, kStateBit | kVisibilityBit);
    notify({.state = stateChanged && publishing.isOutermost(kStateBit),
            .visibility = visibilityChanged && publishing.isOutermost(kVisibilityBit)});
}

PropertyController::PropertyChanges PropertyController::PropertyData::publish(Action action,
                                                                              std::size_t index) {
    PropertyChanges changes;
    publish(action, index, changes);
    return changes;
}

PropertyController::PropertyChanges
PropertyController::PropertyData::publishValue(Action action, std::size_t index) {
    const Publishing publishing(publishingFlags_, kValueBit);
    if (publishing.isOutermost(kValueBit)) {
        notifyValue(action, index);
    }
    return {};
}

PropertyController::PropertyChanges PropertyController::PropertyData::publishState() {
    PropertyChanges changes;
    publishState(changes);
    return changes;
}

PropertyController::PropertyChanges PropertyController::PropertyData::publishVisibility() {
    PropertyChanges changes;
    publishVisibility(changes);
    return changes;
}

PropertyController::PropertyChanges
PropertyController::PropertyData::publishDependency(const Dependency& dependency) {
    PropertyChanges changes;
    publishDependency(dependency, changes);
    return changes;
}

void PropertyController::PropertyData::publish(Action action, std::size_t index,
                                               PropertyChanges& changes) {
    const Publishing publishing(publishingFlags_, kValueBit | kStateBit);
    const bool stateChanged = updateCachedState();
    changes |= {.stateChanged = stateChanged, .errorCountMayHaveChanged = stateChanged};
    notify({.value = publishing.isOutermost(kValueBit),
            .action = action,
            .index = index,
            .state = stateChanged && publishing.isOutermost(kStateBit)});
}

void PropertyController::PropertyData::publishState(PropertyChanges& changes) {
    const Publishing publishing(publishingFlags_, kStateBit);
    const bool stateChanged = updateCachedState();
    changes |= {.stateChanged = stateChanged, .errorCountMayHaveChanged = stateChanged};
    notify({.state = stateChanged && publishing.isOutermost(kStateBit)});
}

void PropertyController::PropertyData::publishVisibility(PropertyChanges& changes) {
    if (!visibilityFunction_) {
        return;
    }
    const Publishing publishing(publishingFlags_, kStateBit | kVisibilityBit);
    if (!updateCachedVisibility()) {
        return;
    }
    changes |= {.visibilityChanged = true,
                .subPropertyVisibilityChanged = subPropertyContainer_ != nullptr};
    const bool stateChanged = updateCachedState();
    changes |= {.stateChanged = stateChanged, .errorCountMayHaveChanged = stateChanged};
    notify({.state = stateChanged && publishing.isOutermost(kStateBit),
            .visibility = publishing.isOutermost(kVisibilityBit)});
}

void PropertyController::PropertyData::publishDependency(const Dependency& dependency,
                                                         PropertyChanges& changes) {
    const std::uint32_t mask =
        (dependency.updatesValue ? kValueBit : 0U) |
        (dependency.updatesState || dependency.updatesVisibility ? kStateBit : 0U) |
        (dependency.updatesVisibility ? kVisibilityBit : 0U);
    const Publishing publishing(publishingFlags_, mask);

    const bool visibilityChanged = dependency.updatesVisibility && updateCachedVisibility();
    changes |=
        {.subPropertyVisibilityChanged = visibilityChanged && subPropertyContainer_ != nullptr};
    const bool stateChanged = (dependency.updatesState || visibilityChanged) && updateCachedState();
    changes |= {.errorCountMayHaveChanged = stateChanged};

    notify({.value = dependency.updatesValue && publishing.isOutermost(kValueBit),
            .state = stateChanged && publishing.isOutermost(kStateBit),
            .visibility = visibilityChanged && publishing.isOutermost(kVisibilityBit)});
}

std::size_t PropertyController::PropertyData::subscribe(SubscriptionCallbacks&& callbacks) {
    const std::size_t id = nextSubscriptionId.fetch_add(1);
    subscriptions_.insert(id, std::move(callbacks));
    return id;
}

void PropertyController::PropertyData::unsubscribe(std::size_t id) noexcept {
    subscriptions_.erase(id);
}

bool PropertyController::PropertyData::empty() const noexcept {
    return !stateFunction_ && !visibilityFunction_ && dependentProperties_.empty() &&
           raisedProperties_.empty() && subPropertyContainer_ == nullptr &&
           crossReferenceController_ == nullptr && subscriptions_.empty();
}

bool PropertyController::PropertyData::updateCachedState() const {
    return stateFunction_ && storeState(cachedVisibility_ ? stateFunction_() : PropertyState());
}

bool PropertyController::PropertyData::updateCachedVisibility() const {
    return visibilityFunction_ && storeVisibility(visibilityFunction_());
}

// What was computed is compared with the cache only now: the functions may have published too.

bool PropertyController::PropertyData::storeVisibility(bool visible) const noexcept {
    return std::exchange(cachedVisibility_, visible) != visible;
}

bool PropertyController::PropertyData::storeState(PropertyState&& state) const noexcept {
    if (!cachedVisibility_) {
        state = PropertyState();
    }
    if (sameState(state, cachedState_)) {
        return false;
    }
    errorCounter_.change(!cachedState_.has_value(), !state.has_value());
    cachedState_ = std::move(state);
    return true;
}

void PropertyController::PropertyData::notifyValue(Action action, std::size_t index) const {
    subscriptions_.forEach([action, index](const auto& subscriber) {
        subscriber.callbacks->value.callIfSet(action, index);
    });
}

void PropertyController::PropertyData::notify(const Notification& notification) const {
    if (!notification.state && !notification.visibility) {
        if (notification.value) {
            notifyValue(notification.action, notification.index);
        }
        return;
    }
    // A subscriber that ends its subscription in one callback hears nothing more.
    subscriptions_.forEach([notification](const auto& subscriber) {
        const SubscriptionCallbacks& callbacks = *subscriber.callbacks;
        if (notification.value) {
            callbacks.value.callIfSet(notification.action, notification.index);
        }
        if (notification.state && callbacks.state && !subscriber.erased) {
            callbacks.state();
        }
        if (notification.visibility && callbacks.visibility && !subscriber.erased) {
            callbacks.visibility();
        }
    });
}

} // namespace corvane::workbench::bindings
