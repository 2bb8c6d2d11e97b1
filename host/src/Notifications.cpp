#include <corvane/workbench/host/Notifications.hpp>

#include <corvane/workbench/bindings/Action.hpp>
#include <corvane/workbench/bindings/PropertyContainer.hpp>
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/host/displayText.hpp>
#include <corvane/workbench/host/editableProperties.hpp>
#include <corvane/workbench/host/referenceProperty.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <cstddef>
#include <functional>
#include <ostream>
#include <unordered_set>
#include <utility>
#include <vector>

namespace corvane::workbench::host {

namespace {

using bindings::PropertyController;
using model::internal::BasicElementReference;

constexpr std::string_view kArrow = " → ";

std::string actionText(bindings::Action action, std::size_t index) {
    switch (action) {
    case bindings::Action::Update:
        return {};
    case bindings::Action::Insert:
        return "  (row " + std::to_string(index) + " inserted)";
    case bindings::Action::Remove:
        return "  (row " + std::to_string(index) + " removed)";
    case bindings::Action::Move:
        return "  (row moved to " + std::to_string(index) + ")";
    }
    return {};
}

} // namespace

/// The subscriptions to one element. Those to the rows of its lists may have lost their rows
/// without notice: a subscription must not be ended then, it ended with its row.
class Notifications::Watch {
public:
    Watch(Notifications& notifications, ElementNode& element) : element_(element) {
        const auto add = [&](const PropertyPlace& place) {
            if (!place.property.property) {
                return;
            }
            auto subscription = notifications.subscribe(element, place);
            if (place.row == nullptr) {
                own_.push_back(std::move(subscription));
            } else {
                ofRows_.emplace_back(place.row, std::make_unique<PropertyController::Subscription>(
                                                    std::move(subscription)));
            }
        };
        forEachProperty(element, add);
        errorCount_ = element.properties().subscribeToPropertyErrorCount(
            [&notifications, &element] { notifications.errorCountChanged(element); });
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    ~Watch() {
        std::unordered_set<const skill::SubElement*> rows;
        if (!ofRows_.empty()) {
            const auto note = [&](const PropertyPlace& place) { rows.insert(place.row); };
            forEachProperty(element_, note);
        }
        for (auto& [row, subscription] : ofRows_) {
            if (!rows.contains(row)) {
                // Frees the memory without running the destructor.
                ::operator delete(subscription.release());
            }
        }
    }

private:
    const ElementNode& element_;
    std::vector<PropertyController::Subscription> own_;
    std::vector<
        std::pair<const skill::SubElement*, std::unique_ptr<PropertyController::Subscription>>>
        ofRows_;
    bindings::PropertyContainer::ErrorCountSubscription errorCount_;
};

Notifications::Notifications(Workbench& workbench, std::ostream& out)
    : workbench_(workbench), out_(out) {
    refresh();
    workbench_.addObserver(*this);
}

Notifications::~Notifications() {
    workbench_.removeObserver(*this);
}

void Notifications::refresh() {
    watches_.clear();
    watchBelow(workbench_.root());
}

void Notifications::watchBelow(ElementNode& element) {
    watches_.emplace(&element, std::make_unique<Watch>(*this, element));
    for (std::size_t index = 0; index < element.childCount(); ++index) {
        watchBelow(element.child(index));
    }
}

void Notifications::forgetBelow(const ElementNode& element) {
    watches_.erase(&element);
    for (std::size_t index = 0; index < element.childCount(); ++index) {
        forgetBelow(element.child(index));
    }
}

PropertyController::Subscription Notifications::subscribe(const ElementNode& element,
                                                          const PropertyPlace& place) const {
    // The description is copied: it is as good as the element or the row, which outlives the call.
    const auto where = [&element, path = place.path] { return element.primaryKey() + "." + path; };
    PropertyController::SubscriptionCallbacks callbacks;
    callbacks.value = [this, where, &element, path = place.path, property = place.property,
                       row = place.row](bindings::Action action, std::size_t index) {
        const std::string value = valueText({element, property, path, row});
        line("value", where()) << ": " << value << actionText(action, index) << '\n';
    };
    callbacks.state = [this, where, handle = place.property.property] {
        const auto& state = handle.state();
        line("state", where()) << ": " << (state ? "ok" : "error: " + onOneLine(state.error()))
                               << '\n';
    };
    callbacks.visibility = [this, where, handle = place.property.property] {
        line("visibility", where()) << ": " << (handle.visible() ? "visible" : "hidden") << '\n';
    };
    return place.property.property.subscribe(std::move(callbacks));
}

void Notifications::errorCountChanged(const ElementNode& element) const {
    line("errors", keyText(element.primaryKey()))
        << ": " << element.properties().propertyErrorCount() << '\n';
}

void Notifications::configurationUnloading() {
    watches_.clear();
}

void Notifications::configurationLoaded() {
    refresh();
}

void Notifications::elementAdded(const ElementNode& element) {
    line("added", element.primaryKey()) << '\n';
}

void Notifications::elementRenamed(const ElementNode& element, std::string_view oldKey) {
    line("renamed", oldKey) << kArrow << onOneLine(element.primaryKey()) << '\n';
}

void Notifications::elementMoved(const ElementNode& element, std::string_view oldKey) {
    line("moved", oldKey) << kArrow << onOneLine(element.primaryKey()) << '\n';
}

void Notifications::elementRemoving(const ElementNode& element) {
    line("removing", element.primaryKey()) << '\n';
    forgetBelow(element);
}

void Notifications::elementRemoved(std::string_view key) {
    line("removed", key) << '\n';
}

void Notifications::elementMembersChanged(const ElementNode& element) {
    line("members", element.primaryKey()) << '\n';
}

void Notifications::referenceKeyChanged(const BasicElementReference& reference) {
    line("new key", placeOf(reference, workbench_))
        << ": " << onOneLine(reference.data().primaryKey()) << '\n';
}

void Notifications::referenceStateChanged(const BasicElementReference& reference) {
    line("resolution", placeOf(reference, workbench_))
        << ": " << onOneLine(reference.data().primaryKey()) << '\n';
}

std::ostream& Notifications::line(std::string_view what, std::string_view where) const {
    return out_ << "  " << what << std::string(kPlaceColumn - what.size(), ' ') << onOneLine(where);
}

} // namespace corvane::workbench::host
