#pragma once

// Where a virtual operation stands among those of its class, read from a pointer to it. Only some
// binary interfaces are known here; where kVirtualPositionsKnown is false, tests of an order skip.

#include <bit>
#include <cstddef>
#include <cstdint>

namespace corvane::tests {

#if defined(__GNUC__) && defined(__x86_64__)
inline constexpr bool kVirtualPositionsKnown = true;
#else
inline constexpr bool kVirtualPositionsKnown = false;
#endif

/// The destructor counts as the first operation; the one declared behind it is the second.
template <class Operation>
std::uintptr_t virtualPosition(Operation operation) {
    // The offset of the entry plus one, and the adjustment of the object. A destructor has two
    // entries, so that the index of an entry is the number of its operation.
    struct MemberPointer {
        std::uintptr_t place;
        std::ptrdiff_t adjustment;
    };
    if constexpr (sizeof(Operation) == sizeof(MemberPointer)) {
        return (std::bit_cast<MemberPointer>(operation).place - 1) / sizeof(void*);
    } else {
        return 0;
    }
}

} // namespace corvane::tests
