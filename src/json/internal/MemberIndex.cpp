#include "MemberIndex.hpp"

#include <bit>
#include <functional>
#include <string>

namespace corvane::workbench::json::internal {

MemberIndex::MemberIndex(const Sequence<Object::Member>& members, std::size_t capacity)
    : m_members(members) {
    if (capacity > kSmall) {
        m_slots.resize(std::bit_ceil(capacity * 2));
    }
}

std::size_t MemberIndex::search(std::string_view name) const noexcept {
    for (std::size_t position = 0; position < m_members.size(); ++position) {
        if (m_members[position].first == name) {
            return position;
        }
    }
    return kNone;
}

std::size_t MemberIndex::findOrEnterInTable(std::string_view name) {
    const std::size_t hash = std::hash<std::string_view>()(name);
    const auto shortHash = static_cast<std::uint32_t>(hash >> 32U);
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t index = hash & mask;; index = (index + 1) & mask) {
        Slot& slot = m_slots[index];
        if (slot.position == 0) {
            slot = {static_cast<std::uint32_t>(m_members.size() + 1), shortHash};
            return kNone;
        }
        if (slot.hash == shortHash && m_members[slot.position - 1].first == name) {
            return slot.position - 1;
        }
    }
}

} // namespace corvane::workbench::json::internal
