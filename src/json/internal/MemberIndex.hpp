#pragma once

#include <corvane/workbench/json/Object.hpp>
#include <corvane/workbench/json/Value.hpp>
#include <corvane/workbench/json/internal/Sequence.hpp>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

namespace corvane::workbench::json::internal {

/// Finds members of an object by name while the object is built. A small object is searched from
/// the front; a larger one gets a hash table of positions, in one allocation. The names come from
/// files, so a large table has a hash for which nobody can choose names that collide.
class MemberIndex {
public:
    static constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();

    /// Watches `members`, which is empty and to which at most `capacity` members will be appended.
    MemberIndex(const Sequence<Object::Member>& members, std::size_t capacity);

    /// The position of the member of that name, or kNone; then the caller appends that member.
    [[nodiscard]] std::size_t findOrEnter(std::string_view name) {
        return slots_.empty() ? search(name) : findOrEnterInTable(name);
    }

private:
    /// Up to here comparing with every member is faster than hashing.
    static constexpr std::size_t kSmall = 16;
    /// Up to here even names that all collide cost no more than hashing them well.
    static constexpr std::size_t kFewSlots = 128;

    struct Slot {
        /// Counts from 1; 0 in an empty slot.
        std::uint32_t position = 0;
        std::uint32_t hash = 0;
    };

    [[nodiscard]] std::size_t search(std::string_view name) const noexcept;
    [[nodiscard]] std::size_t findOrEnterInTable(std::string_view name);
    [[nodiscard]] std::uint64_t hash(std::string_view name) const;

    const Sequence<Object::Member>& members_;
    std::vector<Slot> slots_;
};

} // namespace corvane::workbench::json::internal
