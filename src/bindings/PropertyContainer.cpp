#include <corvane/workbench/bindings/PropertyContainer.hpp>

#include "FirstException.hpp"

#include <atomic>
#include <cassert>
#include <set>

namespace corvane::workbench::bindings {

namespace {

constinit std::atomic<std::uint64_t> nextErrorCountSubscriptionId = 0;

// A container that fails while it configures itself stays configured, and has a count after that.
template <class Count>
std::uint64_t countDespite(internal::FirstException& failure, Count&& count) {
    std::uint64_t result = 0;
    return failure.run([&] { result = count(); }) ? result : count();
}

} // namespace

PropertyContainer::ErrorCountSubscription&
PropertyContainer::ErrorCountSubscription::operator=(ErrorCountSubscription&& other) noexcept {
    if (this != &other) {
        reset();
        container_ = std::exchange(other.container_, nullptr);
        id_ = std::exchange(other.id_, 0);
    }
    return *this;
}

void PropertyContainer::ErrorCountSubscription::reset() noexcept {
    PropertyContainer* const container = std::exchange(container_, nullptr);
    const std::uint64_t id = std::exchange(id_, 0);
    if (container != nullptr) {
        container->unsubscribeFromPropertyErrorCount(id);
    }
}

PropertyContainer::PropertyContainer() = default;

PropertyContainer::~PropertyContainer() = default;

void PropertyContainer::setEnclosingPropertyContainer(
    PropertyContainer& container, SetEnclosingPropertyContainerOptions options) {
    if (enclosingPropertyContainer_ == &container) {
        return;
    }
    assert(!container.isAtOrBelow(*this) && "a container cannot be linked below itself");

    // A container that configures itself lazily does so here, before its count is used and before
    // anything has changed.
    static_cast<void>(localPropertyErrorCount());

    internal::FirstException failure;
    PropertyContainer* const former = std::exchange(enclosingPropertyContainer_, &container);
    const std::uint64_t unpassed = std::exchange(unpassedDifference_, 0);
    if (former != nullptr && !options.keepOldContainerCount) {
        failure.run([&] {
            const std::uint64_t count = propertyErrorCount() - unpassed;
            former->adjustSubContainerPropertyErrorCount(static_cast<std::int64_t>(0 - count));
        });
    }
    if (!options.keepNewContainerCount) {
        failure.run([&] {
            const std::uint64_t count = countGivenTo(container);
            container.adjustSubContainerPropertyErrorCount(static_cast<std::int64_t>(count));
        });
    }
    failure.rethrow();
}

void PropertyContainer::resetEnclosingPropertyContainer(
    SetEnclosingPropertyContainerOptions options) {
    PropertyContainer* const former = std::exchange(enclosingPropertyContainer_, nullptr);
    const std::uint64_t unpassed = std::exchange(unpassedDifference_, 0);
    if (former == nullptr || options.keepOldContainerCount) {
        return;
    }
    internal::FirstException failure;
    failure.run([&] {
        const std::uint64_t count =
            countDespite(failure, [&] { return propertyErrorCount(); }) - unpassed;
        former->adjustSubContainerPropertyErrorCount(static_cast<std::int64_t>(0 - count));
    });
    failure.rethrow();
}

std::uint64_t PropertyContainer::propertyErrorCount() const {
    // The local count comes first: asking for it may change the other one.
    const std::uint64_t local = localPropertyErrorCount();
    return local + subContainerPropertyErrorCount_;
}

void PropertyContainer::forEachCrossReference(
    const utils::core::function_ref<void(CrossReferenceController&)>& callback,
    ForEachCrossReferenceOptions options) {
    forEachLocalCrossReference(callback, options.includeInvisible);
    if (options.recursive) {
        forEachSubPropertyContainer(
            [&](PropertyContainer& container) {
                container.forEachCrossReference(callback, options);
            },
            options.includeInvisible);
    }
}

void PropertyContainer::localPropertyErrorCountChanged() {
    PropertyContainer* const former = enclosingPropertyContainer_;
    internal::FirstException failure;
    failure.run([&] { notifyErrorCountChanged(); });
    if (enclosingPropertyContainer_ != nullptr) {
        failure.run([&] { enclosingPropertyContainer_->updateSubContainerPropertyErrorCount(); });
    }
    // A callback that unlinked this container took the new count out of one that had the old.
    if (former != nullptr && former != enclosingPropertyContainer_) {
        failure.run([&] { former->updateSubContainerPropertyErrorCount(); });
    }
    failure.rethrow();
}

void PropertyContainer::raisePropertyNotification(const PropertyId& property) const {
    if (enclosingPropertyContainer_ != nullptr) {
        enclosingPropertyContainer_->propertyNotificationRaised(property);
    }
}

void PropertyContainer::subPropertyContainerAdded(const PropertyContainer& container) {
    const std::uint64_t count = container.countGivenTo(*this);
    adjustSubContainerPropertyErrorCount(static_cast<std::int64_t>(count));
}

void PropertyContainer::subPropertyContainerRemoved(const PropertyContainer& container) {
    const std::uint64_t count = container.countGivenTo(*this);
    adjustSubContainerPropertyErrorCount(static_cast<std::int64_t>(0 - count));
}

void PropertyContainer::subPropertyContainerListChanged(
    SubPropertyContainerListChangedOptions options) {
    internal::FirstException failure;
    if (options.updateEnclosingContainers) {
        std::set<PropertyContainer*> formers;
        failure.run([&] {
            forEachSubPropertyContainer(
                [&](PropertyContainer& container) {
                    assert(!isAtOrBelow(container) && "a container cannot be linked below itself");
                    PropertyContainer* const former = container.enclosingPropertyContainer_;
                    if (former != nullptr && former != this) {
                        formers.insert(former);
                    }
                    container.enclosingPropertyContainer_ = this;
                },
                true);
        });
        for (PropertyContainer* const former : formers) {
            failure.run([&] { former->updateSubContainerPropertyErrorCount(); });
        }
    }
    failure.run([&] { updateSubContainerPropertyErrorCount(); });
    failure.rethrow();
}

void PropertyContainer::subPropertyContainerListCopied(
    const PropertyContainer& other, SubPropertyContainerListChangedOptions options) {
    if (&other == this) {
        return;
    }
    if (options.updateEnclosingContainers) {
        linkSubContainers();
    }
    setSubContainerPropertyErrorCount(other.subContainerPropertyErrorCount_);
}

void PropertyContainer::subPropertyContainerListMoved(
    PropertyContainer& other, SubPropertyContainerListChangedOptions options) {
    if (&other == this) {
        return;
    }
    if (options.updateEnclosingContainers) {
        linkSubContainers();
    }
    const std::uint64_t count = other.subContainerPropertyErrorCount_;
    internal::FirstException failure;
    failure.run([&] { other.setSubContainerPropertyErrorCount(0); });
    failure.run([&] { setSubContainerPropertyErrorCount(count); });
    failure.rethrow();
}

void PropertyContainer::subPropertyContainerListSwapped(
    PropertyContainer& other, SubPropertyContainerListChangedOptions options) {
    if (&other == this) {
        return;
    }
    internal::FirstException failure;
    if (options.updateEnclosingContainers) {
        failure.run([&] { linkSubContainers(); });
        failure.run([&] { other.linkSubContainers(); });
    }
    const std::uint64_t count = subContainerPropertyErrorCount_;
    const std::uint64_t otherCount = other.subContainerPropertyErrorCount_;
    failure.run([&] { setSubContainerPropertyErrorCount(otherCount); });
    failure.run([&] { other.setSubContainerPropertyErrorCount(count); });
    failure.rethrow();
}

void PropertyContainer::propertyErrorCountChanged() {}

PropertyContainer::ErrorCountSubscription
PropertyContainer::subscribeToPropertyErrorCountInternal(std::function<void()> callback) {
    const std::uint64_t id = nextErrorCountSubscriptionId.fetch_add(1);
    errorCountSubscriptions_.insert(id, std::move(callback));
    return ErrorCountSubscription(ErrorCountSubscription::kInternalConstructor, *this, id);
}

void PropertyContainer::unsubscribeFromPropertyErrorCount(std::uint64_t id) noexcept {
    errorCountSubscriptions_.erase(id);
}

void PropertyContainer::publishPropertyErrorCount() const {
    errorCountSubscriptions_.forEach([](const auto& subscriber) { (*subscriber.callbacks)(); });
}

// The one place where counts travel upward.
void PropertyContainer::setSubContainerPropertyErrorCount(std::uint64_t count) {
    internal::FirstException failure;
    PropertyContainer* current = this;
    while (current->storeSubContainerPropertyErrorCount(count)) {
        failure.run([&] { current->notifyErrorCountChanged(); });
        // A callback may have passed the difference on, added to it, or relinked the container.
        const std::uint64_t difference = std::exchange(current->unpassedDifference_, 0);
        current = current->enclosingPropertyContainer_;
        if (current == nullptr) {
            break;
        }
        count = current->subContainerPropertyErrorCount_ + difference;
    }
    failure.rethrow();
}

void PropertyContainer::adjustSubContainerPropertyErrorCount(std::int64_t difference) {
    setSubContainerPropertyErrorCount(subContainerPropertyErrorCount_ +
                                      static_cast<std::uint64_t>(difference));
}

void PropertyContainer::updateSubContainerPropertyErrorCount() {
    // Counting a sub-container may configure it, and its callbacks may ask for this recount again.
    // Instead of walking again inside the walk, which would nest as deep as the list is long, the
    // walk is repeated when it has ended.
    if (recount_ != Recount::Idle) {
        recount_ = Recount::Outdated;
        return;
    }
    internal::FirstException failure;
    std::uint64_t sum = 0;
    bool complete = false;
    do {
        recount_ = Recount::Idle;
        sum = 0;
        complete = failure.run([&] {
            forEachSubPropertyContainer(
                [&](PropertyContainer& container) {
                    // Not earlier: this container may have to configure itself before it can walk,
                    // and recounts itself when it has.
                    if (recount_ == Recount::Idle) {
                        recount_ = Recount::Running;
                    }
                    sum += countDespite(failure, [&] { return container.countGivenTo(*this); });
                },
                false);
        });
    } while (recount_ == Recount::Outdated);
    recount_ = Recount::Idle;
    if (complete) {
        failure.run([&] { setSubContainerPropertyErrorCount(sum); });
    }
    failure.rethrow();
}

// Returns whether the count is another one now.
bool PropertyContainer::storeSubContainerPropertyErrorCount(std::uint64_t count) noexcept {
    if (recount_ != Recount::Idle) {
        recount_ = Recount::Outdated;
    }
    const std::uint64_t former = std::exchange(subContainerPropertyErrorCount_, count);
    if (former == count) {
        return false;
    }
    if (enclosingPropertyContainer_ != nullptr) {
        unpassedDifference_ += count - former;
    }
    return true;
}

void PropertyContainer::notifyErrorCountChanged() {
    propertyErrorCountChanged();
    publishPropertyErrorCount();
}

void PropertyContainer::linkSubContainers() {
    forEachSubPropertyContainer(
        [&](PropertyContainer& container) {
            assert(!isAtOrBelow(container) && "a container cannot be linked below itself");
            container.enclosingPropertyContainer_ = this;
        },
        true);
}

bool PropertyContainer::isAtOrBelow(const PropertyContainer& container) const noexcept {
    for (const PropertyContainer* current = this; current != nullptr;
         current = current->enclosingPropertyContainer_) {
        if (current == &container) {
            return true;
        }
    }
    return false;
}

// What a recount of the owner may take into account: all but what is on its way there already.
std::uint64_t PropertyContainer::countGivenTo(const PropertyContainer& owner) const {
    const std::uint64_t total = propertyErrorCount();
    return enclosingPropertyContainer_ == &owner ? total - unpassedDifference_ : total;
}

} // namespace corvane::workbench::bindings
