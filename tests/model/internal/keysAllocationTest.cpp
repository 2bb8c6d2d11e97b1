// Counts allocations: this file replaces the program's operator new.
#include <corvane/workbench/model/internal/keys.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <new>
#include <string>
#include <string_view>

namespace {
std::size_t allocations = 0;
}

void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    ++allocations;
    return std::malloc(size == 0 ? 1 : size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace {

namespace keys = corvane::workbench::model::internal;

// Long enough that no part of it fits into a string without memory of its own.
constexpr std::string_view kKey =
    "a.plant.[with.a.very.long.name.that.holds.dots].and.a.member.[whose.name.is.long.as.well]";

TEST(KeyAllocation, SplittingAViewAllocatesNothing) {
    const std::size_t before = allocations;
    const auto component = keys::parseKeyComponent(kKey, kKey.begin());
    const auto iterators = keys::splitMemberKey(kKey, kKey.begin());
    const auto views = keys::splitMemberKey(kKey);
    EXPECT_EQ(allocations, before);
    EXPECT_EQ(*component, '.');
    EXPECT_TRUE(iterators.second.has_value());
    EXPECT_TRUE(views.second.has_value());
}

TEST(KeyAllocation, SplittingAnOwnedKeyAllocatesTheMemberNameAlone) {
    std::string key(kKey);
    const std::size_t before = allocations;
    const auto parts = keys::splitMemberKey(std::move(key));
    // Debug libraries allocate a proxy for each string; the exact count is that of ordinary ones.
    EXPECT_LE(allocations, before + 1);
    EXPECT_EQ(parts.second, "[whose.name.is.long.as.well]");
}

TEST(KeyAllocation, TheCounterCounts) {
    const std::size_t before = allocations;
    const std::string copy(kKey);
    EXPECT_GT(allocations, before);
    EXPECT_EQ(copy, kKey);
}

} // namespace
