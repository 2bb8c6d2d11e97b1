#pragma once

#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/bindings/internal/ErrorCounter.hpp>
#include <corvane/workbench/bindings/internal/PropertyFunction.hpp>
#include <corvane/workbench/bindings/internal/SparseVector.hpp>
#include <corvane/workbench/bindings/internal/SubscriptionList.hpp>
#include <corvane/workbench/export.hpp>

#include <cstddef>
#include <cstdint>
#include <span>

namespace corvane::workbench::bindings {

/// One property's configuration, cached state and visibility, and subscribers. Copied and moved
/// whole; a source that was moved from has no subscribers. It knows nothing of other properties:
/// the publications return what the controller has to do beyond this property.
///
/// Each publication also exists with a parameter `changes`, to which changes are added as soon as
/// they are made, so that they are known when a callback throws. In a table of properties, a state
/// that is stored is counted there at once.
class CORVANE_WORKBENCH_EXPORT PropertyController::PropertyData {
public:
    /// Replaces functions, raised properties, sub-container and cross reference. Calls nothing.
    /// Nothing has changed when an exception is thrown.
    void configure(PropertyConfiguration&& configuration, const ClassifiedProperty& classified);

    /// Records a dependent, merging it with the record that exists for the same property.
    void addDependentProperty(Dependency&& dependency);

    /// Computes visibility and state after the configuration and tells subscribers what changed.
    void postConfigure();

    /// Each computes anew what it publishes and tells the subscribers; publish() publishes value
    /// and state.
    /// @{
    PropertyChanges publish(Action action, std::size_t index);
    PropertyChanges publishValue(Action action, std::size_t index);
    PropertyChanges publishState();
    PropertyChanges publishVisibility();
    PropertyChanges publishDependency(const Dependency& dependency);
    /// @}

    /// The same, adding to `changes`.
    /// @{
    void publish(Action action, std::size_t index, PropertyChanges& changes);
    void publishState(PropertyChanges& changes);
    void publishVisibility(PropertyChanges& changes);
    void publishDependency(const Dependency& dependency, PropertyChanges& changes);
    /// @}

    /// Stores the callbacks under a new id, which is returned. Ids grow in the order of
    /// subscription and are unique in the process.
    std::size_t subscribe(SubscriptionCallbacks&& callbacks);
    /// An unknown id is ignored.
    void unsubscribe(std::size_t id) noexcept;

    /// As last computed.
    /// @{
    [[nodiscard]] const PropertyState& state() const noexcept { return cachedState_; }
    [[nodiscard]] bool visible() const noexcept { return cachedVisibility_; }
    /// @}

    /// What was configured, for the controller to go on with.
    /// @{
    [[nodiscard]] std::span<const Dependency> dependentProperties() const noexcept {
        return dependentProperties_.items();
    }
    [[nodiscard]] std::span<const PropertyId> raisedProperties() const noexcept {
        return raisedProperties_.items();
    }
    [[nodiscard]] PropertyContainer* subPropertyContainer() const noexcept {
        return subPropertyContainer_;
    }
    [[nodiscard]] CrossReferenceController* crossReferenceController() const noexcept {
        return crossReferenceController_;
    }
    /// @}

    /// Whether nothing is configured, nothing depends on the property and nobody is subscribed.
    [[nodiscard]] bool empty() const noexcept;

private:
    friend class internal::PropertyTable<PropertyData>;

    class Publishing;
    struct Notification;

    /// Has the table that holds the property count it while its state is an error; null: none does.
    void countErrorsIn(std::size_t* errors) noexcept {
        errorCounter_.countIn(errors, !cachedState_.has_value());
    }

    [[nodiscard]] bool updateCachedState() const;
    [[nodiscard]] bool updateCachedVisibility() const;
    [[nodiscard]] bool storeVisibility(bool visible) const noexcept;
    [[nodiscard]] bool storeState(PropertyState&& state) const noexcept;
    void notifyValue(Action action, std::size_t index) const;
    void notify(const Notification& notification) const;

    // The order of the fields up to the visibility is fixed.
    std::uint32_t publishingFlags_ = 0;
    internal::PropertyFunction<PropertyState> stateFunction_;
    internal::PropertyFunction<bool> visibilityFunction_;
    internal::SparseVector<Dependency> dependentProperties_;
    internal::SparseVector<PropertyId> raisedProperties_;
    PropertyContainer* subPropertyContainer_ = nullptr;
    CrossReferenceController* crossReferenceController_ = nullptr;
    internal::SubscriptionList<std::size_t, SubscriptionCallbacks> subscriptions_;
    mutable PropertyState cachedState_;
    mutable bool cachedVisibility_ = true;
    internal::ErrorCounter errorCounter_;
};

} // namespace corvane::workbench::bindings
