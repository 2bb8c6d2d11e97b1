// Counts the memory that the adjusters ask for: they run on every keystroke.
#include "TextBox.hpp"
#include <corvane/workbench/bindings/functional.hpp>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {
std::atomic<std::size_t> allocations{0};
}

void* operator new(std::size_t size) {
    ++allocations;
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) {
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

namespace corvane::workbench::bindings::functional {
namespace {

template <class Adjuster>
std::size_t allocationsOf(const Adjuster& adjuster, test::TextBox box) {
    box.text.reserve(256);
    const std::size_t before = allocations;
    box.adjust(adjuster);
    return allocations - before;
}

TEST(TextAdjusterAllocations, AreCounted) {
    const std::size_t before = allocations;
    const std::wstring text(100, L'x');
    EXPECT_EQ(allocations - before, 1U);
}

TEST(TextAdjusterAllocations, NoneIsMadeForATimeStampThatFitsItsText) {
    for (const wchar_t* const text :
         {L"", L"2|", L"20241|-05-06 07:08:09Z", L"2024/05/06T07:08:09.5,x+0530|",
          L"2024-05-06 07:08:09Zabcdefghijklmnop|"}) {
        EXPECT_EQ(allocationsOf(AdjustTimeStampText(), test::TextBox::parse(text)), 0U) << text;
    }
}

TEST(TextAdjusterAllocations, NoneIsMadeForAUuidThatFitsItsText) {
    for (const wchar_t* const text :
         {L"|", L"0123456789|", L"{01234567-89ab}|", L"f|01234567-89ab-cdef-0123-456789abcdef"}) {
        EXPECT_EQ(allocationsOf(AdjustUuidText(), test::TextBox::parse(text)), 0U) << text;
    }
}

} // namespace
} // namespace corvane::workbench::bindings::functional
