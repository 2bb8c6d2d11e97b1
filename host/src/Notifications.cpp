#include <corvane/workbench/host/Notifications.hpp>

#include <corvane/workbench/bindings/Action.hpp>
#include <corvane/workbench/bindings/PropertyContainer.hpp>
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/host/CurrentOperation.hpp>
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

/// The subscriptions to one element. What a property is called is not kept but found again when it
/// is needed, because there are many properties and few notifications.
///
/// Subscriptions to the rows of lists may have lost their rows without notice: such a subscription
/// must not be ended, it ended with its row.
class Notifications::Watch {
public:
    Watch(Notifications& notifications, ElementNode& element)
        : notifications_(notifications), element_(element) {
        const auto add = [&](const PropertyPlace& place) {
            if (place.property.property) {
                subscribe(place);
            }
        };
        forEachProperty(element, add);
        watched_.shrink_to_fit();
        errorCount_ = element.properties().subscribeToPropertyErrorCount([this] {
            line("errors", keyText(element_.primaryKey()))
                << ": " << element_.properties().propertyErrorCount() << '\n';
        });
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    ~Watch() {
        std::unordered_set<const skill::SubElement*> rows;
        if (hasRows_) {
            const auto note = [&](const PropertyPlace& place) { rows.insert(place.row); };
            forEachProperty(element_, note);
        }
        for (Watched& watched : watched_) {
            if (watched.row && !rows.contains(watched.row->row)) {
                // Frees the memory without running the destructor.
                ::operator delete(watched.row->subscription.release());
            }
        }
    }

private:
    /// What only properties in rows need.
    struct Row {
        skill::SubElement* row;
        std::string path;
        std::unique_ptr<PropertyController::Subscription> subscription;
    };
    struct Watched {
        bindings::PropertyHandle property;
        std::unique_ptr<Row> row;
        PropertyController::Subscription subscription;
    };

    void subscribe(const PropertyPlace& place) {
        // Small enough to need no memory of their own.
        const auto index = watched_.size();
        PropertyController::SubscriptionCallbacks callbacks;
        callbacks.value = [this, index](bindings::Action action, std::size_t row) {
            const auto print = [&](const PropertyPlace& changed) {
                const std::string value = valueText(changed);
                line("value", keyOf(changed)) << ": " << value << actionText(action, row) << '\n';
            };
            describe(watched_[index], print);
        };
        callbacks.state = [this, index] {
            const auto print = [&](const PropertyPlace& changed) {
                const auto& state = stateOf(changed);
                line("state", keyOf(changed))
                    << ": " << (state ? "ok" : "error: " + onOneLine(state.error())) << '\n';
            };
            describe(watched_[index], print);
        };
        callbacks.visibility = [this, index] {
            const auto print = [&](const PropertyPlace& changed) {
                line("visibility", keyOf(changed))
                    << ": " << (isVisible(changed) ? "visible" : "hidden") << '\n';
            };
            describe(watched_[index], print);
        };
        Watched watched{place.property.property, nullptr, {}};
        auto subscription = watched.property.subscribe(std::move(callbacks));
        if (place.row == nullptr) {
            watched.subscription = std::move(subscription);
        } else {
            watched.row = std::make_unique<Row>(
                place.row, place.path,
                std::make_unique<PropertyController::Subscription>(std::move(subscription)));
            hasRows_ = true;
        }
        watched_.push_back(std::move(watched));
    }

    /// Calls back with the property as its element or row describes it now.
    template <class Callback>
    void describe(const Watched& watched, const Callback& callback) const {
        const auto look = [&](const skill::EditableProperty& property) {
            const bool isIt = property.property &&
                              &property.property.controller() == &watched.property.controller() &&
                              property.property.property() == watched.property.property();
            if (isIt) {
                callback(PropertyPlace{element_, property,
                                       watched.row ? watched.row->path : property.name,
                                       watched.row ? watched.row->row : nullptr});
            }
        };
        callSkill(
            CurrentOperation::Kind::ListProperties,
            [&] {
                if (watched.row) {
                    watched.row->row->forEachEditableProperty(look);
                } else {
                    element_.skillElement()->forEachEditableProperty(look);
                }
            },
            element_);
    }

    std::string keyOf(const PropertyPlace& place) const {
        return element_.primaryKey() + "." + place.path;
    }

    std::ostream& line(std::string_view what, std::string_view where) const {
        notifications_.changed_.insert(&element_);
        return notifications_.line(what, where);
    }

    Notifications& notifications_;
    ElementNode& element_;
    std::vector<Watched> watched_;
    bool hasRows_ = false;
    bindings::PropertyContainer::ErrorCountSubscription errorCount_;
};

Notifications::Notifications(Workbench& workbench, std::ostream& out)
    : workbench_(workbench), out_(out) {
    watchBelow(workbench_.root());
    workbench_.addObserver(*this);
}

Notifications::~Notifications() {
    workbench_.removeObserver(*this);
}

void Notifications::refresh() {
    for (ElementNode* element : std::exchange(changed_, {})) {
        std::unique_ptr<Watch>& watch = watches_[element];
        watch.reset();
        watch = std::make_unique<Watch>(*this, *element);
    }
}

void Notifications::watchBelow(ElementNode& element) {
    watches_.emplace(&element, std::make_unique<Watch>(*this, element));
    for (std::size_t index = 0; index < element.childCount(); ++index) {
        watchBelow(element.child(index));
    }
}

void Notifications::forgetBelow(ElementNode& element) {
    watches_.erase(&element);
    changed_.erase(&element);
    for (std::size_t index = 0; index < element.childCount(); ++index) {
        forgetBelow(element.child(index));
    }
}

void Notifications::configurationUnloading() {
    watches_.clear();
    changed_.clear();
}

void Notifications::configurationLoaded() {
    watchBelow(workbench_.root());
}

void Notifications::elementAdded(const ElementNode& element) {
    line("added", element.primaryKey()) << '\n';
    changed_.insert(workbench_.findElement(element.uuid()));
}

void Notifications::elementRenamed(const ElementNode& element, std::string_view oldKey) {
    line("renamed", oldKey) << kArrow << onOneLine(element.primaryKey()) << '\n';
}

void Notifications::elementMoved(const ElementNode& element, std::string_view oldKey) {
    line("moved", oldKey) << kArrow << onOneLine(element.primaryKey()) << '\n';
}

void Notifications::elementRemoving(const ElementNode& element) {
    line("removing", element.primaryKey()) << '\n';
    forgetBelow(*workbench_.findElement(element.uuid()));
}

void Notifications::elementRemoved(std::string_view key) {
    line("removed", key) << '\n';
}

void Notifications::elementMembersChanged(const ElementNode& element) {
    line("members", element.primaryKey()) << '\n';
}

void Notifications::referenceKeyChanged(const BasicElementReference& reference) {
    line("new key", placeOf(reference)) << ": " << onOneLine(reference.data().primaryKey()) << '\n';
}

void Notifications::referenceStateChanged(const BasicElementReference& reference) {
    line("resolution", placeOf(reference))
        << ": " << onOneLine(reference.data().primaryKey()) << '\n';
}

std::ostream& Notifications::line(std::string_view what, std::string_view where) const {
    return out_ << "  " << what << std::string(kPlaceColumn - what.size(), ' ') << onOneLine(where);
}

std::string Notifications::placeOf(const BasicElementReference& reference) const {
    const ElementNode* owner = workbench_.ownerOf(reference);
    if (owner == nullptr) {
        return "(no element)";
    }
    const std::string path = propertyPath(reference, *owner);
    return path.empty() ? owner->primaryKey() : owner->primaryKey() + "." + path;
}

} // namespace corvane::workbench::host
