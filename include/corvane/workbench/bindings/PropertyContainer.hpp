#pragma once

#include <corvane/utils/core/function_ref.hpp>
#include <corvane/workbench/bindings/internal/SubscriptionList.hpp>
#include <corvane/workbench/export.hpp>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>

namespace corvane::workbench::bindings {

class CrossReferenceController;
class PropertyId;

/// The base of everything that owns editable properties and can be nested in another owner.
///
/// Keeps what all owners of properties share: the link to the enclosing container, the error count
/// of the containers below, and the subscribers to this container's error count. It holds no
/// properties; the subclass answers for them through the private virtual operations.
///
/// All counts are unsigned and wrap around. The stored count of the containers below is adjusted as
/// they report changes. It is adjusted whether or not the property that holds them is visible, so
/// an owner that hides properties asks for a recount (subPropertyContainerListChanged) after a
/// change further down.
///
/// A container's place in a tree, its counts and its subscribers belong to the object: a copy
/// starts without them, and assignment changes nothing. The destructor notifies nobody. Unlink a
/// container and drop the subscriptions to it before destroying it.
///
/// Callbacks may subscribe, unsubscribe, publish and query; they may not destroy the container that
/// calls them, one that encloses it, or one that takes part in the operation. Changes of a count
/// that callbacks make before the enclosing container was told of the first one reach it as one
/// difference, or not at all if they cancel out. A callback that links a container elsewhere sets
/// both keep flags and then calls subPropertyContainerListChanged on the former and the new owner;
/// with other flags a count may be moved twice. When a callback throws, the enclosing containers
/// are still updated and notified, and then the first exception goes on to the caller.
///
/// Used by one thread at a time.
class CORVANE_WORKBENCH_EXPORT PropertyContainer {
public:
    /// What linking and unlinking do with the counts; by default both move along.
    struct SetEnclosingPropertyContainerOptions {
        bool reservedFlag = false;          ///< read by nothing
        bool keepNewContainerCount = false; ///< do not raise the new enclosing container's count
        bool keepOldContainerCount = false; ///< do not lower the former enclosing container's count
    };

    /// What a change of the list does with the links.
    struct SubPropertyContainerListChangedOptions {
        bool updateEnclosingContainers = false; ///< first link every sub-container to this one
    };

    /// Which cross references are visited besides the container's own visible ones.
    struct ForEachCrossReferenceOptions {
        bool recursive = false;        ///< also visit the sub-containers
        bool includeInvisible = false; ///< also visit properties that are not visible
    };

    /// Owns one subscription to a container's error count, until it is reset, destroyed or moved
    /// from. Must not outlive the container.
    class CORVANE_WORKBENCH_EXPORT ErrorCountSubscription {
    public:
        /// Restricts the constructor that takes it to the friends, who can name its one value.
        struct InternalConstructorTag {
            explicit InternalConstructorTag() = default;
        };

        ErrorCountSubscription() noexcept = default;
        /// Makes an empty handle: copying the owner of a subscription must not end in two owners.
        ErrorCountSubscription(const ErrorCountSubscription&) noexcept {}
        /// Takes the subscription over; the other is then empty.
        ErrorCountSubscription(ErrorCountSubscription&& other) noexcept
            : container_(std::exchange(other.container_, nullptr)),
              id_(std::exchange(other.id_, 0)) {}
        /// Does nothing, for the same reason.
        ErrorCountSubscription& operator=(const ErrorCountSubscription&) noexcept { return *this; }
        /// Ends the target's own subscription first.
        ErrorCountSubscription& operator=(ErrorCountSubscription&& other) noexcept;
        ~ErrorCountSubscription() { reset(); }

        /// Ends the subscription. Safe in any callback, its own included.
        void reset() noexcept;
        /// Whether there is a subscription.
        [[nodiscard]] operator bool() const noexcept { return container_ != nullptr; }

    private:
        friend class PropertyContainer;
        static constexpr InternalConstructorTag kInternalConstructor{};

        ErrorCountSubscription(InternalConstructorTag,
                               std::reference_wrapper<PropertyContainer> container,
                               std::uint64_t id) noexcept
            : container_(&container.get()), id_(id) {}

        PropertyContainer* container_ = nullptr;
        std::uint64_t id_ = 0;
    };

    // The order of the virtual operations, here and below, is fixed.

    virtual ~PropertyContainer() = 0;

    PropertyContainer();
    /// A copy has neither place nor counts nor subscribers, and an assignment leaves the target's
    /// own.
    /// @{
    PropertyContainer(const PropertyContainer&) : PropertyContainer() {}
    PropertyContainer(PropertyContainer&&) : PropertyContainer() {}
    PropertyContainer& operator=(const PropertyContainer&) noexcept { return *this; }
    PropertyContainer& operator=(PropertyContainer&&) noexcept { return *this; }
    /// @}

    /// The container whose property holds this one; null for a root.
    [[nodiscard]] PropertyContainer* enclosingPropertyContainer() const noexcept {
        return enclosingPropertyContainer_;
    }

    /// Links this container below another one, moving its error count from the former enclosing
    /// container to the new one as the options say. Does nothing when it is linked there already.
    /// Counts this container first; when that throws, nothing has changed.
    /// @pre the given container is not this one nor below it
    void setEnclosingPropertyContainer(PropertyContainer& container,
                                       SetEnclosingPropertyContainerOptions options);

    /// Makes this container a root and takes its error count out of the former enclosing container,
    /// unless the options keep it there.
    void resetEnclosingPropertyContainer(SetEnclosingPropertyContainerOptions options);

    /// The number of errors here and below. Configures where the subclass does so to count.
    [[nodiscard]] std::uint64_t propertyErrorCount() const;

    /// Visits this container's own cross references and then, with `recursive`, those of its
    /// sub-containers, depth first.
    void forEachCrossReference(
        const utils::core::function_ref<void(CrossReferenceController&)>& callback,
        ForEachCrossReferenceOptions options);

    /// Has the callable, which takes no arguments, called after each change of propertyErrorCount()
    /// that this container hears of, until the handle ends the subscription. Subscribers are called
    /// in the order of subscription. An empty std::function is accepted, and throws
    /// std::bad_function_call when its turn comes.
    template <class Callable>
    [[nodiscard]] ErrorCountSubscription subscribeToPropertyErrorCount(Callable&& callable) {
        return subscribeToPropertyErrorCountInternal(
            std::function<void()>(std::forward<Callable>(callable)));
    }

protected:
    /// To be called when the value of localPropertyErrorCount() has changed.
    void localPropertyErrorCountChanged();

    /// Asks the enclosing container, if there is one, to publish its property of that name.
    void raisePropertyNotification(const PropertyId& property) const;

    /// To be called when a sub-container was added. Counts it whether or not it is visible.
    void subPropertyContainerAdded(const PropertyContainer& container);
    /// To be called when a sub-container was removed.
    void subPropertyContainerRemoved(const PropertyContainer& container);

    /// To be called when the set of sub-containers or the visibility of the properties that hold
    /// them changed. Recounts this container and every container that lost one to it.
    void subPropertyContainerListChanged(SubPropertyContainerListChangedOptions options);

    /// @name Lists taken over
    /// Counts are taken over as they stand. Nothing happens when both containers are one.
    /// @{

    /// To be called when the sub-containers were copied from those of another container.
    void subPropertyContainerListCopied(const PropertyContainer& other,
                                        SubPropertyContainerListChangedOptions options);
    /// To be called when the sub-containers were moved out of another container.
    void subPropertyContainerListMoved(PropertyContainer& other,
                                       SubPropertyContainerListChangedOptions options);
    /// To be called when the sub-containers were swapped with those of another container.
    void subPropertyContainerListSwapped(PropertyContainer& other,
                                         SubPropertyContainerListChangedOptions options);

    /// @}

private:
    /// Called when this container's error count changed, before its subscribers.
    virtual void propertyErrorCountChanged();

    /// Calls back with the sub-container of each property that has one; without `includeInvisible`
    /// only with those of visible properties.
    virtual void
    forEachSubPropertyContainer(const utils::core::function_ref<void(PropertyContainer&)>& callback,
                                bool includeInvisible) = 0;

    /// Calls back with the cross reference of each own property that has one; without
    /// `includeInvisible` only with those of visible properties.
    virtual void forEachLocalCrossReference(
        const utils::core::function_ref<void(CrossReferenceController&)>& callback,
        bool includeInvisible) = 0;

    /// The number of errors among this container's own properties.
    virtual std::uint64_t localPropertyErrorCount() const = 0;

    /// A sub-container asks for this container's property to be published.
    virtual void propertyNotificationRaised(const PropertyId& property) = 0;

    [[nodiscard]] ErrorCountSubscription
    subscribeToPropertyErrorCountInternal(std::function<void()> callback);
    void unsubscribeFromPropertyErrorCount(std::uint64_t id) noexcept;
    void publishPropertyErrorCount() const;

    void setSubContainerPropertyErrorCount(std::uint64_t count);
    void adjustSubContainerPropertyErrorCount(std::int64_t difference);
    void updateSubContainerPropertyErrorCount();

    [[nodiscard]] bool storeSubContainerPropertyErrorCount(std::uint64_t count) noexcept;
    void notifyErrorCountChanged();
    void linkSubContainers();
    [[nodiscard]] bool isAtOrBelow(const PropertyContainer& container) const noexcept;
    [[nodiscard]] std::uint64_t countGivenTo(const PropertyContainer& owner) const;

    enum class Recount : std::uint8_t { Idle, Running, Outdated };

    // The order of the first three fields is fixed.
    PropertyContainer* enclosingPropertyContainer_ = nullptr;
    std::uint64_t subContainerPropertyErrorCount_ = 0;
    internal::SubscriptionList<std::uint64_t, std::function<void()>> errorCountSubscriptions_;

    // The part of this container's count that the enclosing container has not been given yet: not
    // zero only while this container's own subscribers hear of a change.
    std::uint64_t unpassedDifference_ = 0;
    Recount recount_ = Recount::Idle;
};

} // namespace corvane::workbench::bindings
