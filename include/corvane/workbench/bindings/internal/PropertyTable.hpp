#pragma once

#include <corvane/workbench/bindings/PropertyId.hpp>

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

namespace corvane::workbench::bindings::internal {

/// The properties of one controller, safe to change while they are being walked and published.
///
/// A hash map from PropertyId to Data that is walked in the order of insertion; a few entries are
/// found without hashing. Entries never move. Whoever looks an entry up gets a pin, and while a pin
/// exists the entry does too: one that is removed meanwhile can no longer be found nor is it walked
/// to, but lives until its last pin is gone. An entry that is made under the same identifier after
/// a removal is another one. Looking up, walking, pinning and removing do not allocate.
///
/// The table counts the entries in error; the entries keep that count (Data::countErrorsIn).
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

    PropertyTable() noexcept = default;
    PropertyTable(const PropertyTable&) = delete;
    PropertyTable& operator=(const PropertyTable&) = delete;
    ~PropertyTable() { clear(); }

    [[nodiscard]] std::size_t size() const noexcept { return size_; }

    /// How many entries have an error for their state.
    [[nodiscard]] std::size_t errorCount() const noexcept { return errorCount_; }

    /// A false pin when there is no entry.
    [[nodiscard]] Pin find(const PropertyId& id) noexcept { return Pin(*this, entryOf(id)); }

    /// The table is unchanged when an exception is thrown.
    [[nodiscard]] Pin findOrCreate(const PropertyId& id) {
        if (Entry* const entry = entryOf(id)) {
            return Pin(*this, entry);
        }
        auto entry = std::make_unique<Entry>(id);
        makeRoomInIndex();
        entry->data.countErrorsIn(&errorCount_);
        entry->previous = last_;
        (last_ != nullptr ? last_->next : first_) = entry.get();
        last_ = entry.get();
        ++size_;
        if (index_ != nullptr) {
            enterIntoIndex(entry.get());
        }
        return Pin(*this, entry.release());
    }

    /// Removing an entry twice is the same as removing it once.
    void remove(const Pin& pin) noexcept {
        Entry* const entry = pin.entry_;
        if (!entry->removed) {
            if (index_ != nullptr) {
                removeFromIndex(entry);
            }
            entry->data.countErrorsIn(nullptr);
            entry->removed = true;
            --size_;
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
        index_.reset(); // which spares closing a gap in it for each
        while (Pin pin = Pin(*this, firstKept(first_))) {
            remove(pin);
        }
    }

private:
    struct Entry {
        explicit Entry(const PropertyId& name) : id(name) {}

        PropertyId id;
        Entry* next = nullptr;
        Entry* previous = nullptr;
        std::uint32_t pins = 0;
        bool removed = false;
        Data data{};
    };

    /// So many entries are compared one by one; more than that have an index.
    static constexpr std::size_t kCompared = 8;

    [[nodiscard]] Entry* entryOf(const PropertyId& id) const noexcept {
        if (index_ != nullptr) {
            return index_[placeOf(id)];
        }
        Entry* entry = first_;
        while (entry != nullptr && (entry->id != id || entry->removed)) {
            entry = entry->next;
        }
        return entry;
    }

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

    // The index: an array of 2^indexBits_ places, at least half of them empty. An entry stands at
    // the first free place at or behind its home, around the end if need be.

    [[nodiscard]] std::size_t indexSize() const noexcept { return std::size_t{1} << indexBits_; }
    [[nodiscard]] std::size_t nextPlace(std::size_t place) const noexcept {
        return (place + 1) & (indexSize() - 1);
    }

    /// Multiplying spreads the hashes of addresses, whose low bits are equal, over the high bits.
    [[nodiscard]] std::size_t homeOf(const PropertyId& id) const noexcept {
        return static_cast<std::size_t>(
            (std::uint64_t{std::hash<PropertyId>()(id)} * 0x9e37'79b9'7f4a'7c15U) >>
            (64 - indexBits_));
    }

    /// Where the entry stands, or the empty place where it would.
    [[nodiscard]] std::size_t placeOf(const PropertyId& id) const noexcept {
        std::size_t place = homeOf(id);
        while (index_[place] != nullptr && index_[place]->id != id) {
            place = nextPlace(place);
        }
        return place;
    }

    void enterIntoIndex(Entry* entry) noexcept { index_[placeOf(entry->id)] = entry; }

    /// Closes the gap: an entry behind it moves there unless that is before its home.
    void removeFromIndex(const Entry* entry) noexcept {
        std::size_t gap = placeOf(entry->id);
        const std::size_t mask = indexSize() - 1;
        for (std::size_t place = nextPlace(gap); index_[place] != nullptr;
             place = nextPlace(place)) {
            const std::size_t home = homeOf(index_[place]->id);
            if (((place - home) & mask) >= ((place - gap) & mask)) {
                index_[gap] = index_[place];
                gap = place;
            }
        }
        index_[gap] = nullptr;
    }

    /// For one entry more.
    void makeRoomInIndex() {
        const std::size_t needed = std::size_t{2} * size_ + 2;
        if (size_ < kCompared || (index_ != nullptr && indexSize() >= needed)) {
            return;
        }
        const std::size_t places = std::bit_ceil(needed);
        index_ = std::make_unique<Entry*[]>(places);
        indexBits_ = static_cast<std::uint32_t>(std::countr_zero(places));
        for (Entry* entry = firstKept(first_); entry != nullptr; entry = firstKept(entry->next)) {
            enterIntoIndex(entry);
        }
    }

    Entry* first_ = nullptr;
    Entry* last_ = nullptr;
    std::size_t errorCount_ = 0;
    std::unique_ptr<Entry*[]> index_; // null while there are few entries
    std::uint32_t indexBits_ = 0;
    std::uint32_t size_ = 0;
};

} // namespace corvane::workbench::bindings::internal
