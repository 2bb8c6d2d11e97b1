#include "MemberIndex.hpp"

#include "KeyedHash.hpp"

#include <bit>
#include <functional>
#include <string>

namespace corvane::workbench::json::internal {

MemberIndex::MemberIndex(const Sequence<Object::Member>& members, std::size_t capacity)
    : members_(members) {
    if (capacity > kSmall) {
        slots_.resize(std::bit_ceil(capacity * 2));
    }
}

std::size_t MemberIndex::search(std::string_view name) const noexcept {
    for (std::size_t position = 0; position < members_.size(); ++position) {
        if (members_[position].first == name) {
            return position;
        }
    }
    return kNone;
}

std::uint64_t MemberIndex::hash(std::string_view name) const {
    return slots_.size() <= kFewSlots ? std::hash<std::string_view>()(name)
                                      : KeyedHash::ofThisProcess()(name);
}

std::size_t MemberIndex::findOrEnterInTable(std::string_view name) {
    const std::uint64_t hash = this->hash(name);
    const auto shortHash = static_cast<std::uint32_t>(hash >> 32U);
    const std::size_t mask = slots_.size() - 1;
    for (auto index = static_cast<std::size_t>(hash) & mask;; index = (index + 1) & mask) {
        Slot& slot = slots_[index];
        if (slot.position == 0) {
            slot = {static_cast<std::uint32_t>(members_.size() + 1), shortHash};
            return kNone;
        }
        if (slot.hash == shortHash && members_[slot.position - 1].first == name) {
            return slot.position - 1;
        }
    }
}

} // namespace corvane::workbench::json::internal
