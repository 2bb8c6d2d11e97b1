#pragma once

#include <corvane/workbench/bindings/PropertyId.hpp>

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <utility>

namespace corvane::workbench::bindings::internal {

/// The properties of one controller, safe to change while they are being walked and published.
///
/// A hash map from PropertyId to Data that is walked in the order of insertion. Entries never move.
/// Whoever looks an entry up gets a pin, and while a pin exists the entry does too: one that is
/// removed meanwhile can no longer be found nor is it walked to, but lives until its last pin is
/// gone. An entry that is made under the same identifier after a removal is another one. Looking
/// up, walking, pinning and removing do not allocate.
template <class Data>
class PropertyTable {
    struct Entry;

public:
    /// Keeps an entry alive; false when there is no entry. Must not outlive the table.
    class Pin {
    public:
        Pin() noexcept = default;
        Pin(Pin&& other) noexcept
            : table_(other.table_), entry_(std::exchange(other.entry_, nullptr)) {}
        Pin& operator=(Pin&& other) noexcept {
            Pin taken(std::move(other));
            std::swap(table_, taken.table_);
            std::swap(entry_, taken.entry_);
            return *this;
        }
        ~Pin() {
            if (entry_ != nullptr && --entry_->pins == 0 && entry_->removed) {
                table_->destroy(entry_);
            }
        }

        [[nodiscard]] explicit operator bool() const noexcept { return entry_ != nullptr; }
        [[nodiscard]] Data& operator*() const noexcept { return entry_->data; }
        [[nodiscard]] Data* operator->() const noexcept { return &entry_->data; }

    private:
        friend class PropertyTable;
        Pin(PropertyTable& table, Entry* entry) noexcept : table_(&table), entry_(entry) {
            if (entry_ != nullptr) {
                ++entry_->pins;
            }
        }

        PropertyTable* table_ = nullptr;
        Entry* entry_ = nullptr;
    };

    PropertyTable() = default;
    PropertyTable(const PropertyTable&) = delete;
    PropertyTable& operator=(const PropertyTable&) = delete;
    ~PropertyTable() { clear(); }

    [[nodiscard]] std::size_t size() const noexcept { return index_.size(); }

    /// A false pin when there is no entry.
    [[nodiscard]] Pin find(const PropertyId& id) noexcept {
        const auto found = index_.find(id);
        return Pin(*this, found == index_.end() ? nullptr : found->second);
    }

    /// The table is unchanged when an exception is thrown.
    [[nodiscard]] Pin findOrCreate(const PropertyId& id) {
        if (const auto found = index_.find(id); found != index_.end()) {
            return Pin(*this, found->second);
        }
        auto entry = std::make_unique<Entry>(id);
        index_.emplace(id, entry.get());
        entry->previous = last_;
        (last_ != nullptr ? last_->next : first_) = entry.get();
        last_ = entry.get();
        return Pin(*this, entry.release());
    }

    /// Removing an entry twice is the same as removing it once.
    void remove(const Pin& pin) noexcept {
        if (!pin.entry_->removed) {
            index_.erase(pin.entry_->id);
            pin.entry_->removed = true;
        }
    }

    /// Calls visit(data) for each entry in the order of insertion, those included that are made
    /// meanwhile.
    template <class Visit>
    void forEach(Visit&& visit) {
        for (Pin pin(*this, firstKept(first_)); pin;
             pin = Pin(*this, firstKept(pin.entry_->next))) {
            visit(*pin);
        }
    }

    /// Removes every entry.
    void clear() noexcept {
        while (Pin pin = Pin(*this, firstKept(first_))) {
            remove(pin);
        }
    }

private:
    struct Entry {
        explicit Entry(const PropertyId& name) : id(name) {}

        PropertyId id;
        Data data{};
        Entry* previous = nullptr;
        Entry* next = nullptr;
        std::size_t pins = 0;
        bool removed = false;
    };

    // A removed entry stays in the list while it is pinned, so that a walk can go on from it.
    [[nodiscard]] static Entry* firstKept(Entry* entry) noexcept {
        while (entry != nullptr && entry->removed) {
            entry = entry->next;
        }
        return entry;
    }

    void destroy(Entry* entry) noexcept {
        (entry->previous != nullptr ? entry->previous->next : first_) = entry->next;
        (entry->next != nullptr ? entry->next->previous : last_) = entry->previous;
        delete entry;
    }

    std::unordered_map<PropertyId, Entry*> index_;
    Entry* first_ = nullptr;
    Entry* last_ = nullptr;
};

} // namespace corvane::workbench::bindings::internal
