#include <corvane/workbench/bindings/PropertyController.hpp>

#include "FirstException.hpp"
#include <corvane/workbench/bindings/CrossReferenceController.hpp>
#include <corvane/workbench/bindings/PropertyData.hpp>
#include <corvane/workbench/bindings/PropertyHandle.hpp>

namespace corvane::workbench::bindings {

const PropertyController::PropertyState PropertyController::kDummyState{};

PropertyController::Subscription&
PropertyController::Subscription::operator=(Subscription&& other) noexcept {
    if (this != &other) {
        reset();
        controller_ = std::exchange(other.controller_, nullptr);
        property_ = std::exchange(other.property_, PropertyId());
        id_ = std::exchange(other.id_, 0);
    }
    return *this;
}

void PropertyController::Subscription::reset() noexcept {
    PropertyController* const controller = std::exchange(controller_, nullptr);
    const PropertyId property = std::exchange(property_, PropertyId());
    const std::size_t id = std::exchange(id_, 0);
    if (controller != nullptr) {
        controller->unsubscribe(property, id);
    }
}

PropertyController::PropertyController() = default;
PropertyController::PropertyController(const PropertyController&) : PropertyContainer() {}
PropertyController::PropertyController(PropertyController&&) : PropertyContainer() {}
PropertyController::~PropertyController() = default;

PropertyHandle PropertyController::propertyHandle(const PropertyId& property) {
    return PropertyHandle(PropertyHandle::kInternalConstructor, *this, property);
}

const PropertyController::PropertyState&
PropertyController::propertyState(const PropertyId& property) const {
    ensurePropertiesConfigured();
    const auto data = properties_.find(property);
    return data ? data->state() : kDummyState;
}

bool PropertyController::propertyVisible(const PropertyId& property) const {
    ensurePropertiesConfigured();
    const auto data = properties_.find(property);
    return !data || data->visible();
}

void PropertyController::publish(const PropertyId& property, Action action,
                                 std::size_t index) const {
    if (const auto data = properties_.find(property)) {
        publishWithDependents(
            *data, [&](PropertyChanges& changes) { data->publish(action, index, changes); });
    }
}

void PropertyController::publishValue(const PropertyId& property, Action action,
                                      std::size_t index) const {
    if (const auto data = properties_.find(property)) {
        publishWithDependents(*data, [&](PropertyChanges&) { data->publishValue(action, index); });
    }
}

void PropertyController::publishState(const PropertyId& property) const {
    ensurePropertiesConfigured();
    if (const auto data = properties_.find(property)) {
        publishGlobally([&](PropertyChanges& changes) { data->publishState(changes); });
    }
}

void PropertyController::publishVisibility(const PropertyId& property) const {
    ensurePropertiesConfigured();
    if (const auto data = properties_.find(property)) {
        publishGlobally([&](PropertyChanges& changes) { data->publishVisibility(changes); });
    }
}

PropertyController::Subscription PropertyController::subscribe(const PropertyId& property,
                                                               SubscriptionCallbacks callbacks) {
    const std::size_t id = storeSubscription(property, std::move(callbacks));
    return Subscription(Subscription::kInternalConstructor, *this, property, id);
}

void PropertyController::forEachSubPropertyContainer(
    const utils::core::function_ref<void(PropertyContainer&)>& callback, bool includeInvisible) {
    ensurePropertiesConfigured();
    properties_.forEach([&](PropertyData& data) {
        if (data.subPropertyContainer() != nullptr && (includeInvisible || data.visible())) {
            callback(*data.subPropertyContainer());
        }
    });
}

void PropertyController::forEachLocalCrossReference(
    const utils::core::function_ref<void(CrossReferenceController&)>& callback,
    bool includeInvisible) {
    ensurePropertiesConfigured();
    properties_.forEach([&](PropertyData& data) {
        if (data.crossReferenceController() != nullptr && (includeInvisible || data.visible())) {
            callback(*data.crossReferenceController());
        }
    });
}

std::uint64_t PropertyController::localPropertyErrorCount() const {
    ensurePropertiesConfigured();
    return cachedPropertyErrorCount_;
}

void PropertyController::propertyNotificationRaised(const PropertyId& property) {
    publishValue(property, Action::Update, 0);
}

void PropertyController::configureProperties(PropertyConfigurationContext&) {}

void PropertyController::ensurePropertiesConfigured() {
    if (propertiesConfigured_) {
        return;
    }
    propertiesConfigured_ = true;
    PropertyConfigurationContext context(*this);
    configureProperties(context);
}

void PropertyController::ensurePropertiesConfigured() const {
    const_cast<PropertyController&>(*this).ensurePropertiesConfigured();
}

void PropertyController::configurePropertyInternal(const PropertyId& property,
                                                   PropertyConfiguration&& configuration,
                                                   const ClassifiedProperty& classified) {
    internal::FirstException failure;
    if (PropertyContainer* const container = classified.subPropertyContainer) {
        failure.run([&] {
            container->setEnclosingPropertyContainer(*this, {.reservedFlag = false,
                                                             .keepNewContainerCount = true,
                                                             .keepOldContainerCount = false});
        });
        // A container that could not be linked leaves the property as it was. One that was, whoever
        // failed to hear of it, has to be found in the property.
        if (container->enclosingPropertyContainer() != this) {
            failure.rethrow();
        }
    }
    if (classified.crossReferenceController != nullptr) {
        classified.crossReferenceController->setReferringController(*this);
    }
    const PropertyIdRange valueDependencies = configuration.valueDependencies;
    const PropertyIdRange stateDependencies = configuration.stateDependencies;
    const PropertyIdRange visibilityDependencies = configuration.visibilityDependencies;
    properties_.findOrCreate(property)->configure(std::move(configuration), classified);
    addDependents(valueDependencies, {.property = property, .updatesValue = true});
    addDependents(stateDependencies, {.property = property, .updatesState = true});
    addDependents(visibilityDependencies, {.property = property, .updatesVisibility = true});
    failure.rethrow();
}

void PropertyController::addDependents(PropertyIdRange properties, const Dependency& dependency) {
    for (const PropertyId& property : properties) {
        properties_.findOrCreate(property)->addDependentProperty(Dependency(dependency));
    }
}

void PropertyController::endConfiguration() noexcept {
    internal::FirstException dropped;
    properties_.forEach([&](PropertyData& data) { dropped.run([&] { data.postConfigure(); }); });
    dropped.run([&] { publishSubPropertyVisibility(); });
    dropped.run([&] { publishPropertyErrorCount(); });
}

void PropertyController::subscribeUnmanaged(const PropertyId& property,
                                            SubscriptionCallbacks&& callbacks) {
    storeSubscription(property, std::move(callbacks));
}

std::size_t PropertyController::storeSubscription(const PropertyId& property,
                                                  SubscriptionCallbacks&& callbacks) {
    const std::size_t countBefore = properties_.size();
    const auto data = properties_.findOrCreate(property);
    try {
        return data->subscribe(std::move(callbacks));
    } catch (...) {
        if (properties_.size() != countBefore) {
            properties_.remove(data);
        }
        throw;
    }
}

void PropertyController::unsubscribe(const PropertyId& property, std::size_t id) noexcept {
    if (const auto data = properties_.find(property)) {
        data->unsubscribe(id);
        if (data->empty()) {
            properties_.remove(data);
        }
    }
}

// The changes that were made before an exception still count.
template <class Publication>
void PropertyController::publishGlobally(Publication&& publication) const {
    PropertyChanges changes;
    try {
        publication(changes);
    } catch (...) {
        internal::FirstException().run([&] { publishGlobalChanges(changes); });
        throw;
    }
    if (changes.subPropertyVisibilityChanged || changes.errorCountMayHaveChanged) {
        publishGlobalChanges(changes);
    }
}

template <class Publication>
void PropertyController::publishWithDependents(const PropertyData& data,
                                               Publication&& publication) const {
    publishGlobally([&](PropertyChanges& changes) {
        publication(changes);
        if (!data.dependentProperties().empty()) {
            changes |= updateDependentProperties(data);
        }
    });
    raisePropertyNotifications(data);
}

PropertyController::PropertyChanges
PropertyController::updateDependentProperties(const PropertyData& data) const {
    PropertyChanges changes;
    try {
        // By position and with a copy: a callback may cause a configuration that adds dependents.
        for (std::size_t i = 0; i < data.dependentProperties().size(); ++i) {
            const Dependency dependency = data.dependentProperties()[i];
            if (const auto dependent = properties_.find(dependency.property)) {
                dependent->publishDependency(dependency, changes);
            }
        }
    } catch (...) {
        internal::FirstException().run([&] { publishGlobalChanges(changes); });
        throw;
    }
    return changes;
}

void PropertyController::publishGlobalChanges(const PropertyChanges& changes) const {
    internal::FirstException failure;
    if (changes.subPropertyVisibilityChanged) {
        failure.run([&] { publishSubPropertyVisibility(); });
    }
    if (changes.errorCountMayHaveChanged) {
        failure.run([&] { publishPropertyErrorCount(); });
    }
    failure.rethrow();
}

void PropertyController::publishPropertyErrorCount() const {
    if (updateCachedPropertyErrorCount()) {
        const_cast<PropertyController&>(*this).localPropertyErrorCountChanged();
    }
}

void PropertyController::publishSubPropertyVisibility() const {
    const_cast<PropertyController&>(*this).subPropertyContainerListChanged(
        {.updateEnclosingContainers = false});
}

void PropertyController::raisePropertyNotifications(const PropertyData& data) const {
    for (std::size_t i = 0; i < data.raisedProperties().size(); ++i) {
        const PropertyId raised = data.raisedProperties()[i];
        raisePropertyNotification(raised);
    }
}

bool PropertyController::updateCachedPropertyErrorCount() const {
    ensurePropertiesConfigured();
    const std::size_t count = properties_.errorCount();
    return std::exchange(cachedPropertyErrorCount_, count) != count;
}

} // namespace corvane::workbench::bindings
