#pragma once

#include <cstddef>
#include <map>
#include <utility>

namespace corvane::workbench::bindings::internal {

/// The subscribers of one property or container, safe to change while they are being called.
///
/// An ordered map from subscription id to callbacks. While forEach runs, anything may be inserted
/// and erased: the next subscriber is the one with the smallest id greater than the current one's
/// after its callback has returned, and callbacks that were erased are kept where they are until
/// the outermost forEach has ended, so none is destroyed while it runs. Neither walking nor
/// erasing allocates.
template <class Id, class Callbacks>
class SubscriptionMap {
public:
    SubscriptionMap() = default;
    /// Copies the subscribers, not the walks that are running over them.
    SubscriptionMap(const SubscriptionMap& other) : live_(other.live_) {}
    /// Leaves the source without subscribers.
    SubscriptionMap(SubscriptionMap&& other) noexcept : live_(std::move(other.live_)) {
        other.live_.clear();
    }
    SubscriptionMap& operator=(const SubscriptionMap& other) {
        if (this != &other) {
            *this = SubscriptionMap(other);
        }
        return *this;
    }
    SubscriptionMap& operator=(SubscriptionMap&& other) noexcept {
        if (this != &other) {
            clear();
            live_.swap(other.live_);
        }
        return *this;
    }
    ~SubscriptionMap() { clear(); }

    [[nodiscard]] bool empty() const noexcept { return live_.empty(); }
    [[nodiscard]] std::size_t size() const noexcept { return live_.size(); }
    [[nodiscard]] bool contains(Id id) const { return live_.contains(id); }

    /// Callbacks that are already stored under the id stay.
    void insert(Id id, Callbacks&& callbacks) { live_.try_emplace(id, std::move(callbacks)); }

    /// An unknown id is ignored.
    void erase(Id id) noexcept {
        // The node outlives the change, for destroying callbacks may come back here.
        auto node = live_.extract(id);
        retire(std::move(node));
    }

    void clear() noexcept {
        while (!live_.empty()) {
            auto node = live_.extract(live_.begin());
            retire(std::move(node));
        }
    }

    /// Calls visit(id, callbacks) for each subscriber in ascending order of ids.
    template <class Visit>
    void forEach(Visit&& visit) const {
        const Walk walk(*this);
        for (auto next = live_.begin(); next != live_.end();) {
            const Id id = next->first;
            visit(id, next->second);
            next = live_.upper_bound(id);
        }
    }

private:
    using Map = std::map<Id, Callbacks>;

    class Walk {
    public:
        explicit Walk(const SubscriptionMap& map) noexcept : map_(map) { ++map_.walks_; }
        Walk(const Walk&) = delete;
        Walk& operator=(const Walk&) = delete;
        ~Walk() {
            if (--map_.walks_ == 0) {
                while (!map_.retired_.empty()) {
                    const auto node = map_.retired_.extract(map_.retired_.begin());
                }
            }
        }

    private:
        const SubscriptionMap& map_;
    };

    void retire(typename Map::node_type&& node) noexcept {
        if (walks_ != 0 && !node.empty()) {
            retired_.insert(std::move(node));
        }
    }

    Map live_;
    mutable Map retired_;
    mutable std::size_t walks_ = 0;
};

} // namespace corvane::workbench::bindings::internal
