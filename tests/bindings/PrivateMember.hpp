#pragma once

#include <cstddef>
#include <cstring>

namespace corvane::workbench::bindings::test {

/// Reveals private members to tests of fixed orders: an explicit instantiation may name them.
///
///     struct Id { friend constexpr auto reveal(Id); };
///     template struct PrivateMember<Id, &Subscription::id_>;
///     ... subscription.*reveal(Id{}) ...
template <class Tag, auto Member>
struct PrivateMember {
    friend constexpr auto reveal(Tag) { return Member; }
};

/// Where a field lies in its object.
template <class Object, class Field>
[[nodiscard]] std::ptrdiff_t offsetOf(const Object& object, Field Object::* field) {
    return reinterpret_cast<const char*>(&(object.*field)) - reinterpret_cast<const char*>(&object);
}

#if !defined(_MSC_VER)
/// The place of a virtual operation in the table of virtual operations, as the C++ ABI of GCC and
/// Clang encodes it in a pointer to member. The destructor takes the places 0 and 1.
template <class Operation>
[[nodiscard]] std::size_t virtualSlot(Operation operation) {
    std::size_t offset = 0;
    static_assert(sizeof operation >= sizeof offset);
    std::memcpy(&offset, &operation, sizeof offset);
    return (offset - 1) / sizeof(void*);
}
#endif

} // namespace corvane::workbench::bindings::test
