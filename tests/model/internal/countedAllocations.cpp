#include "countedAllocations.hpp"

#include <cstdlib>
#include <new>
#include <optional>
#include <utility>

namespace {

std::size_t allocations = 0;
std::optional<std::size_t> successesBeforeFailure;

void* allocate(std::size_t size) noexcept {
    if (successesBeforeFailure && (*successesBeforeFailure)-- == 0) {
        successesBeforeFailure.reset();
        return nullptr;
    }
    ++allocations;
    return std::malloc(size == 0 ? 1 : size);
}

} // namespace

void* operator new(std::size_t size) {
    if (void* const memory = allocate(size)) {
        return memory;
    }
    throw std::bad_alloc();
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace corvane::tests {

std::size_t allocationCount() {
    return allocations;
}

void failAllocationAfter(std::size_t count) {
    successesBeforeFailure = count;
}

bool cancelAllocationFailure() {
    return std::exchange(successesBeforeFailure, std::nullopt).has_value();
}

} // namespace corvane::tests
