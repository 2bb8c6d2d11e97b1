#pragma once

// Counts the program's allocations and makes one of them fail. Linking countedAllocations.cpp
// replaces the program's operator new; that reaches into the library where the system has one
// allocator for all (not on Windows).

#include <cstddef>

namespace corvane::tests {

[[nodiscard]] std::size_t allocationCount();

/// Makes the allocation that follows `count` successful ones throw std::bad_alloc, once.
void failAllocationAfter(std::size_t count);

/// Takes back a failure that has not happened; returns whether it was still to come.
bool cancelAllocationFailure();

} // namespace corvane::tests
