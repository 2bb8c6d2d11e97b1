#pragma once

#include <corvane/workbench/bindings/PropertyChangedCallback.hpp>
#include <corvane/workbench/bindings/PropertyContainer.hpp>
#include <corvane/workbench/bindings/PropertyId.hpp>
#include <corvane/workbench/bindings/PropertyIdRange.hpp>
#include <corvane/workbench/bindings/internal/PropertyTable.hpp>
#include <corvane/workbench/export.hpp>

#include <tl/expected.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>

namespace corvane::workbench::bindings {

class PropertyHandle;

/// The object through which an element tells the user interface about its properties.
///
/// Keeps, for each property, how its validity state and visibility are computed, what they were
/// when last computed, and who wants to hear of changes. An element publishes a property when it
/// has changed; the controller then updates the properties that depend on it, calls the
/// subscribers, and keeps the error count.
///
/// A subclass describes its properties in configureProperties. It runs once, when the first
/// operation that needs it is called (the operations say so), and the controller stays configured
/// for life.
///
/// Order of a publication: the subscribers in the order of subscription, each one's value, state
/// and visibility callback before the next one's; then the dependent properties; then the recount
/// of the sub-containers; then the error count; then the notifications raised in the enclosing
/// container.
///
/// Every callback and every state or visibility function may subscribe, end any subscription,
/// publish, query, and cause configuration; it may not destroy the controller that calls it or a
/// container that encloses it. A subscriber added during a publication is called in it, one that is
/// removed is not called any more. A nested publication does not call back for those aspects of a
/// property (value, state, visibility) that are being published already; all else goes on. An
/// exception thrown by any of them reaches the caller of the outermost publication; before that,
/// the error counts are brought up to date with the states.
///
/// Publishing is const for the element that publishes, though it may configure; a controller must
/// not be defined as a const object. A copy starts unconfigured, without properties and
/// subscriptions, and assignment changes nothing. The destructor calls no callback. Used by one
/// thread at a time.
class CORVANE_WORKBENCH_EXPORT PropertyController : public PropertyContainer {
public:
    /// Success, or the message for the user. An invisible property is always in the success state.
    using PropertyState = tl::expected<void, std::wstring>;

    class PropertyConfigurationContext;
    class PropertyData;

    /// What a property holds besides a plain value. Neither object is owned.
    struct ClassifiedProperty {
        /// Null when there is none.
        /// @{
        PropertyContainer* subPropertyContainer = nullptr;
        CrossReferenceController* crossReferenceController = nullptr;
        /// @}
    };

    /// How a property behaves. The lists borrow; see PropertyIdRange for how long.
    struct PropertyConfiguration {
        PropertyIdRange valueDependencies{};      ///< publishing these publishes the value
        std::function<PropertyState()> state{};   ///< empty: always success
        PropertyIdRange stateDependencies{};      ///< publishing these recomputes the state
        std::function<bool()> visibility{};       ///< empty: always visible
        PropertyIdRange visibilityDependencies{}; ///< publishing these recomputes the visibility
        /// Properties of the enclosing container to publish whenever this one is.
        PropertyIdRange raisedProperties{};
    };

    /// A property to update when the value of another one is published.
    struct Dependency {
        PropertyId property{};          ///< the one to update
        bool updatesValue = false;      ///< publish its value
        bool updatesState = false;      ///< compute its state anew
        bool updatesVisibility = false; ///< compute its visibility, then its state anew
    };

    /// What a publication changed. Only the last two ask the controller for more.
    struct PropertyChanges {
        bool stateChanged = false;                 ///< of the property itself
        bool visibilityChanged = false;            ///< of the property itself
        bool subPropertyVisibilityChanged = false; ///< a sub-container was shown or hidden
        bool errorCountMayHaveChanged = false;     ///< the controller has to count anew

        /// Adds the other's changes.
        PropertyChanges& operator|=(const PropertyChanges& other) noexcept {
            stateChanged |= other.stateChanged;
            visibilityChanged |= other.visibilityChanged;
            subPropertyVisibilityChanged |= other.subPropertyVisibilityChanged;
            errorCountMayHaveChanged |= other.errorCountMayHaveChanged;
            return *this;
        }
    };

    /// What a subscriber wants to hear; each may be empty.
    struct SubscriptionCallbacks {
        PropertyChangedCallback value{};    ///< the value was published
        std::function<void()> state{};      ///< the state has changed
        std::function<void()> visibility{}; ///< the visibility has changed
    };

    /// Owns one subscription to a property, until it is reset, destroyed or moved from. Must not
    /// outlive the controller.
    class CORVANE_WORKBENCH_EXPORT Subscription {
    public:
        /// Restricts the constructor that takes it to the friends, who can name its one value.
        struct InternalConstructorTag {
            explicit InternalConstructorTag() = default;
        };

        Subscription() noexcept = default;
        /// Makes an empty subscription: copying the owner of a subscription (a view, a row of a
        /// table) must not end in two owners.
        Subscription(const Subscription&) noexcept {}
        /// Takes the subscription over; the other is then empty.
        Subscription(Subscription&& other) noexcept
            : controller_(std::exchange(other.controller_, nullptr)),
              property_(std::exchange(other.property_, PropertyId())),
              id_(std::exchange(other.id_, 0)) {}
        /// Does nothing, for the same reason.
        Subscription& operator=(const Subscription&) noexcept { return *this; }
        /// Ends the target's own subscription first.
        Subscription& operator=(Subscription&& other) noexcept;
        ~Subscription() { reset(); }

        /// Ends the subscription. Safe in any callback, its own included.
        void reset() noexcept;
        /// Whether there is a subscription.
        [[nodiscard]] explicit operator bool() const noexcept { return controller_ != nullptr; }

    private:
        friend class PropertyController;
        static constexpr InternalConstructorTag kInternalConstructor{};

        Subscription(InternalConstructorTag, std::reference_wrapper<PropertyController> controller,
                     const PropertyId& property, std::size_t id) noexcept
            : controller_(&controller.get()), property_(property), id_(id) {}

        PropertyController* controller_ = nullptr;
        PropertyId property_;
        std::size_t id_ = 0;
    };

    // The order of the virtual operations, here and below, is fixed.

    ~PropertyController() override = 0;

    PropertyController();
    /// A copy has neither properties nor subscribers, and an assignment leaves the target's own.
    /// @{
    PropertyController(const PropertyController&);
    PropertyController(PropertyController&&);
    PropertyController& operator=(const PropertyController&) noexcept { return *this; }
    PropertyController& operator=(PropertyController&&) noexcept { return *this; }
    /// @}

    /// The property together with this controller. Does not configure; the property need not exist.
    [[nodiscard]] PropertyHandle propertyHandle(const PropertyId& property);

    /// The state as last computed; success for an unknown property. Configures. The reference is
    /// good until the property is published again or goes away.
    [[nodiscard]] const PropertyState& propertyState(const PropertyId& property) const;

    /// The visibility as last computed; true for an unknown property. Configures.
    [[nodiscard]] bool propertyVisible(const PropertyId& property) const;

    /// Publishes value and state, updates dependents, raises notifications. Does not configure;
    /// does nothing for an unknown property.
    void publish(const PropertyId& property, Action action, std::size_t index) const;

    /// Publishes the value, updates dependents, raises notifications. Does not configure; does
    /// nothing for an unknown property.
    void publishValue(const PropertyId& property, Action action, std::size_t index) const;

    /// Recomputes the state and tells the subscribers if it changed. Configures.
    void publishState(const PropertyId& property) const;

    /// Recomputes the visibility and, if that changed, the state, and tells the subscribers.
    /// Configures.
    void publishVisibility(const PropertyId& property) const;

    /// Has the callbacks called until the returned handle ends the subscription. Does not
    /// configure, so that one may subscribe before the element is ready.
    [[nodiscard]] Subscription subscribe(const PropertyId& property,
                                         SubscriptionCallbacks callbacks);

protected:
    /// Mints an identifier from data, for instance from the two halves of a UUID. Properties known
    /// at compile time are named by a static PropertyKey instead.
    [[nodiscard]] static PropertyId propertyId(const std::array<std::uint64_t, 2>& words) noexcept {
        return PropertyId(PropertyId::kInternalConstructor, words);
    }

private:
    friend class PropertyHandle;

    // propertyErrorCountChanged() comes first and is inherited.
    void
    forEachSubPropertyContainer(const utils::core::function_ref<void(PropertyContainer&)>& callback,
                                bool includeInvisible) override;
    void forEachLocalCrossReference(
        const utils::core::function_ref<void(CrossReferenceController&)>& callback,
        bool includeInvisible) override;
    std::uint64_t localPropertyErrorCount() const override;
    void propertyNotificationRaised(const PropertyId& property) override;

    /// Describes every property through the context. Called once; what it asks the controller
    /// meanwhile does not configure again. The controller's own does nothing.
    virtual void configureProperties(PropertyConfigurationContext& context);

    using Table = internal::PropertyTable<PropertyData>;

    void ensurePropertiesConfigured();
    void ensurePropertiesConfigured() const;
    void configurePropertyInternal(const PropertyId& property,
                                   PropertyConfiguration&& configuration,
                                   const ClassifiedProperty& classified);
    void addDependents(PropertyIdRange properties, const Dependency& dependency);
    void endConfiguration() noexcept;

    void subscribeUnmanaged(const PropertyId& property, SubscriptionCallbacks&& callbacks);
    std::size_t storeSubscription(const PropertyId& property, SubscriptionCallbacks&& callbacks);
    void unsubscribe(const PropertyId& property, std::size_t id) noexcept;

    template <class Publication>
    void publishGlobally(Publication&& publication) const;
    template <class Publication>
    void publishWithDependents(const PropertyData& data, Publication&& publication) const;
    PropertyChanges updateDependentProperties(const PropertyData& data) const;
    void publishGlobalChanges(const PropertyChanges& changes) const;
    void publishPropertyErrorCount() const;
    void publishSubPropertyVisibility() const;
    void raisePropertyNotifications(const PropertyData& data) const;
    bool updateCachedPropertyErrorCount() const;

    static const PropertyState kDummyState;

    // The order of the fields is fixed. Publishing, const for the caller, changes the last two.
    bool propertiesConfigured_ = false;
    mutable Table properties_;
    mutable std::size_t cachedPropertyErrorCount_ = 0;
};

/// What configureProperties receives. When it ends, all properties are computed for the first time
/// and the error count is brought up to date.
class CORVANE_WORKBENCH_EXPORT PropertyController::PropertyConfigurationContext {
public:
    PropertyConfigurationContext(const PropertyConfigurationContext&) = delete;
    PropertyConfigurationContext& operator=(const PropertyConfigurationContext&) = delete;
    ~PropertyConfigurationContext() { controller_.endConfiguration(); }

    /// Replaces how the property behaves and what it holds; dependencies on other properties are
    /// added to those it has. Links the sub-container and the cross reference, if given, to the
    /// controller.
    void configure(const PropertyId& property, PropertyConfiguration configuration,
                   const ClassifiedProperty& classified = {}) {
        controller_.configurePropertyInternal(property, std::move(configuration), classified);
    }

private:
    friend class PropertyController;
    explicit PropertyConfigurationContext(PropertyController& controller) noexcept
        : controller_(controller) {}

    PropertyController& controller_;
};

} // namespace corvane::workbench::bindings
