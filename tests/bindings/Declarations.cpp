// Skills are compiled against these declarations: that each has exactly this form, constness and
// results included, is checked by the compiler. Whether an operation is noexcept is left open.
#include <corvane/workbench/bindings/CrossReferenceController.hpp>
#include <corvane/workbench/bindings/PropertyChangedCallback.hpp>
#include <corvane/workbench/bindings/PropertyContainer.hpp>
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/bindings/PropertyData.hpp>
#include <corvane/workbench/bindings/PropertyHandle.hpp>
#include <corvane/workbench/bindings/PropertyId.hpp>

#include <tl/expected.hpp>

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <type_traits>

namespace corvane::workbench::bindings {
namespace {

using utils::core::function_ref;
using Changes = PropertyController::PropertyChanges;
using Controller = PropertyController;
using Container = PropertyContainer;
using Callback = PropertyChangedCallback;
using Callbacks = PropertyController::SubscriptionCallbacks;
using Counted = PropertyContainer::ErrorCountSubscription;
using Data = PropertyController::PropertyData;
using Id = PropertyId;
using Handle = PropertyHandle;
using State = tl::expected<void, std::wstring>;
using Subscription = PropertyController::Subscription;
using LinkOptions = PropertyContainer::SetEnclosingPropertyContainerOptions;
using ListOptions = PropertyContainer::SubPropertyContainerListChangedOptions;
using WalkOptions = PropertyContainer::ForEachCrossReferenceOptions;

/// Instantiated with an operation cast to its form. An explicit instantiation may name private
/// members.
template <auto Operation>
struct Declared {};

// Conversions.
static_assert(!std::is_convertible_v<Id, bool> && std::is_constructible_v<bool, Id>);
static_assert(!std::is_convertible_v<Handle, bool> && std::is_constructible_v<bool, Handle>);
static_assert(!std::is_convertible_v<Callback, bool> && std::is_constructible_v<bool, Callback>);
static_assert(!std::is_convertible_v<Subscription, bool> &&
              std::is_constructible_v<bool, Subscription>);
static_assert(std::is_convertible_v<Counted, bool>);
static_assert(std::is_convertible_v<std::nullptr_t, Callback>);

// PropertyId.
template struct Declared<static_cast<bool (Id::*)(const Id&) const>(&Id::operator==)>;
template struct Declared<static_cast<std::strong_ordering (Id::*)(const Id&) const>(
    &Id::operator<=>)>;
template struct Declared<static_cast<bool (Id::*)() const>(&Id::operator bool)>;

// PropertyHandle.
template struct Declared<static_cast<Controller& (Handle::*)() const>(&Handle::controller)>;
template struct Declared<static_cast<const Id& (Handle::*)() const>(&Handle::property)>;
template struct Declared<static_cast<bool (Handle::*)() const>(&Handle::operator bool)>;
template struct Declared<static_cast<const State& (Handle::*)() const>(&Handle::state)>;
template struct Declared<static_cast<bool (Handle::*)() const>(&Handle::visible)>;
template struct Declared<static_cast<void (Handle::*)(Action, std::size_t) const>(
    &Handle::publish)>;
template struct Declared<static_cast<void (Handle::*)(Action, std::size_t) const>(
    &Handle::publishValue)>;
template struct Declared<static_cast<void (Handle::*)() const>(&Handle::publishState)>;
template struct Declared<static_cast<void (Handle::*)() const>(&Handle::publishVisibility)>;
template struct Declared<static_cast<Subscription (Handle::*)(Callbacks) const>(
    &Handle::subscribe)>;

// PropertyController, for everybody.
template struct Declared<static_cast<Handle (Controller::*)(const Id&)>(
    &Controller::propertyHandle)>;
template struct Declared<static_cast<const State& (Controller::*)(const Id&) const>(
    &Controller::propertyState)>;
template struct Declared<static_cast<bool (Controller::*)(const Id&) const>(
    &Controller::propertyVisible)>;
template struct Declared<static_cast<void (Controller::*)(const Id&, Action, std::size_t) const>(
    &Controller::publish)>;
template struct Declared<static_cast<void (Controller::*)(const Id&, Action, std::size_t) const>(
    &Controller::publishValue)>;
template struct Declared<static_cast<void (Controller::*)(const Id&) const>(
    &Controller::publishState)>;
template struct Declared<static_cast<void (Controller::*)(const Id&) const>(
    &Controller::publishVisibility)>;
template struct Declared<static_cast<Subscription (Controller::*)(const Id&, Callbacks)>(
    &Controller::subscribe)>;

// PropertyController, private.
template struct Declared<
    static_cast<void (Controller::*)(const function_ref<void(PropertyContainer&)>&, bool)>(
        &Controller::forEachSubPropertyContainer)>;
template struct Declared<
    static_cast<void (Controller::*)(const function_ref<void(CrossReferenceController&)>&, bool)>(
        &Controller::forEachLocalCrossReference)>;
template struct Declared<static_cast<std::size_t (Controller::*)() const>(
    &Controller::localPropertyErrorCount)>;
template struct Declared<static_cast<void (Controller::*)(const Id&)>(
    &Controller::propertyNotificationRaised)>;
template struct Declared<static_cast<void (Controller::*)(
    Controller::PropertyConfigurationContext&)>(&Controller::configureProperties)>;
template struct Declared<static_cast<void (Controller::*)(
    const Id&, Controller::PropertyConfiguration&&, const Controller::ClassifiedProperty&)>(
    &Controller::configurePropertyInternal)>;
template struct Declared<static_cast<void (Controller::*)()>(
    &Controller::ensurePropertiesConfigured)>;
template struct Declared<static_cast<void (Controller::*)() const>(
    &Controller::ensurePropertiesConfigured)>;
template struct Declared<static_cast<void (Controller::*)(const Id&, Callbacks&&)>(
    &Controller::subscribeUnmanaged)>;
template struct Declared<static_cast<void (Controller::*)(const Id&, std::size_t)>(
    &Controller::unsubscribe)>;
template struct Declared<static_cast<Changes (Controller::*)(const Data&) const>(
    &Controller::updateDependentProperties)>;
template struct Declared<static_cast<void (Controller::*)(const Changes&) const>(
    &Controller::publishGlobalChanges)>;
template struct Declared<static_cast<void (Controller::*)() const>(
    &Controller::publishPropertyErrorCount)>;
template struct Declared<static_cast<void (Controller::*)() const>(
    &Controller::publishSubPropertyVisibility)>;
template struct Declared<static_cast<void (Controller::*)(const Data&) const>(
    &Controller::raisePropertyNotifications)>;
template struct Declared<static_cast<bool (Controller::*)() const>(
    &Controller::updateCachedPropertyErrorCount)>;
static_assert(std::is_same_v<Controller::PropertyState, State>);

// PropertyData.
static_assert(std::is_copy_constructible_v<Data> && std::is_copy_assignable_v<Data>);
static_assert(std::is_move_constructible_v<Data> && std::is_move_assignable_v<Data>);
template struct Declared<static_cast<void (Data::*)(
    Controller::PropertyConfiguration&&, const Controller::ClassifiedProperty&)>(&Data::configure)>;
template struct Declared<static_cast<void (Data::*)(Controller::Dependency&&)>(
    &Data::addDependentProperty)>;
template struct Declared<static_cast<void (Data::*)()>(&Data::postConfigure)>;
template struct Declared<static_cast<Changes (Data::*)(Action, std::size_t)>(&Data::publish)>;
template struct Declared<static_cast<Changes (Data::*)(Action, std::size_t)>(&Data::publishValue)>;
template struct Declared<static_cast<Changes (Data::*)()>(&Data::publishState)>;
template struct Declared<static_cast<Changes (Data::*)()>(&Data::publishVisibility)>;
template struct Declared<static_cast<Changes (Data::*)(const Controller::Dependency&)>(
    &Data::publishDependency)>;
template struct Declared<static_cast<std::size_t (Data::*)(Callbacks&&)>(&Data::subscribe)>;
template struct Declared<static_cast<void (Data::*)(std::size_t)>(&Data::unsubscribe)>;
template struct Declared<static_cast<const State& (Data::*)() const>(&Data::state)>;
template struct Declared<static_cast<bool (Data::*)() const>(&Data::visible)>;
template struct Declared<static_cast<std::span<const Controller::Dependency> (Data::*)() const>(
    &Data::dependentProperties)>;
template struct Declared<static_cast<std::span<const Id> (Data::*)() const>(
    &Data::raisedProperties)>;
template struct Declared<static_cast<Container* (Data::*)() const>(&Data::subPropertyContainer)>;
template struct Declared<static_cast<CrossReferenceController* (Data::*)() const>(
    &Data::crossReferenceController)>;
template struct Declared<static_cast<bool (Data::*)() const>(&Data::empty)>;
template struct Declared<static_cast<bool (Data::*)() const>(&Data::updateCachedState)>;
template struct Declared<static_cast<bool (Data::*)() const>(&Data::updateCachedVisibility)>;

// Subscriptions and callbacks.
template struct Declared<static_cast<void (Callback::*)(Action, std::size_t) const>(
    &Callback::operator())>;
template struct Declared<static_cast<void (Callback::*)() const>(&Callback::operator())>;
template struct Declared<static_cast<void (Subscription::*)()>(&Subscription::reset)>;
template struct Declared<static_cast<void (Counted::*)()>(&Counted::reset)>;
template struct Declared<static_cast<bool (Counted::*)() const>(&Counted::operator bool)>;

// PropertyContainer, for everybody.
template struct Declared<static_cast<Container* (Container::*)() const>(
    &Container::enclosingPropertyContainer)>;
template struct Declared<static_cast<void (Container::*)(Container&, LinkOptions)>(
    &Container::setEnclosingPropertyContainer)>;
template struct Declared<static_cast<void (Container::*)(LinkOptions)>(
    &Container::resetEnclosingPropertyContainer)>;
template struct Declared<static_cast<std::uint64_t (Container::*)() const>(
    &Container::propertyErrorCount)>;
template struct Declared<static_cast<void (Container::*)(
    const function_ref<void(CrossReferenceController&)>&, WalkOptions)>(
    &Container::forEachCrossReference)>;

// PropertyContainer, for subclasses.
template struct Declared<static_cast<void (Container::*)()>(
    &Container::localPropertyErrorCountChanged)>;
template struct Declared<static_cast<void (Container::*)(const Id&) const>(
    &Container::raisePropertyNotification)>;
template struct Declared<static_cast<void (Container::*)(const Container&)>(
    &Container::subPropertyContainerAdded)>;
template struct Declared<static_cast<void (Container::*)(const Container&)>(
    &Container::subPropertyContainerRemoved)>;
template struct Declared<static_cast<void (Container::*)(ListOptions)>(
    &Container::subPropertyContainerListChanged)>;
template struct Declared<static_cast<void (Container::*)(const Container&, ListOptions)>(
    &Container::subPropertyContainerListCopied)>;
template struct Declared<static_cast<void (Container::*)(Container&, ListOptions)>(
    &Container::subPropertyContainerListMoved)>;
template struct Declared<static_cast<void (Container::*)(Container&, ListOptions)>(
    &Container::subPropertyContainerListSwapped)>;

// PropertyContainer, private.
template struct Declared<static_cast<void (Container::*)()>(&Container::propertyErrorCountChanged)>;
template struct Declared<static_cast<void (Container::*)(
    const function_ref<void(PropertyContainer&)>&, bool)>(&Container::forEachSubPropertyContainer)>;
template struct Declared<
    static_cast<void (Container::*)(const function_ref<void(CrossReferenceController&)>&, bool)>(
        &Container::forEachLocalCrossReference)>;
template struct Declared<static_cast<std::uint64_t (Container::*)() const>(
    &Container::localPropertyErrorCount)>;
template struct Declared<static_cast<void (Container::*)(const Id&)>(
    &Container::propertyNotificationRaised)>;
template struct Declared<static_cast<Counted (Container::*)(std::function<void()>)>(
    &Container::subscribeToPropertyErrorCountInternal)>;
template struct Declared<static_cast<void (Container::*)(std::uint64_t)>(
    &Container::unsubscribeFromPropertyErrorCount)>;
template struct Declared<static_cast<void (Container::*)() const>(
    &Container::publishPropertyErrorCount)>;
template struct Declared<static_cast<void (Container::*)(std::uint64_t)>(
    &Container::setSubContainerPropertyErrorCount)>;
template struct Declared<static_cast<void (Container::*)(std::int64_t)>(
    &Container::adjustSubContainerPropertyErrorCount)>;
template struct Declared<static_cast<void (Container::*)()>(
    &Container::updateSubContainerPropertyErrorCount)>;

// CrossReferenceController.
template struct Declared<static_cast<Controller* (CrossReferenceController::*)() const>(
    &CrossReferenceController::referringController)>;
template struct Declared<static_cast<void (CrossReferenceController::*)(Controller&)>(
    &CrossReferenceController::setReferringController)>;

} // namespace
} // namespace corvane::workbench::bindings
