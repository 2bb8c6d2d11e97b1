// Shows how much memory reading JSON takes at its peak, and how much what was read keeps.
//
//     bench-json-memory [FILE...]
//
// The files take the place of the generated documents. Only what goes through operator new is
// seen; libraries in C are left out.
#include "Reader.hpp"
#include "documents.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <exception>
#include <format>
#include <iostream>
#include <new>
#include <string_view>
#include <vector>

namespace {

std::size_t inUse = 0;
std::size_t peak = 0;

/// In front of each block, of a size that keeps the block aligned.
struct alignas(std::max_align_t) Header {
    std::size_t size;
};

} // namespace

void* operator new(std::size_t size) {
    void* const memory = std::malloc(size + sizeof(Header));
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    new (memory) Header{size};
    inUse += size;
    peak = std::max(peak, inUse);
    return static_cast<Header*>(memory) + 1;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    try {
        return operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* memory) noexcept {
    if (memory != nullptr) {
        Header* const header = static_cast<Header*>(memory) - 1;
        inUse -= header->size;
        std::free(header);
    }
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
    operator delete(memory);
}

int main(int argc, char** argv) {
    using namespace corvane::bench;
    try {
        const auto documents = documentsFrom({argv + 1, argv + argc});
        std::cout << std::format("{:<16}{:<12}{:>12}{:>12}{:>12}\n", "document", "library", "bytes",
                                 "peak", "kept");
        for (const Document& document : documents) {
            for (const Reader* const reader : Reader::all()) {
                if (std::string_view(reader->name()) == "yyjson") {
                    continue;
                }
                const std::size_t before = inUse;
                peak = inUse;
                const auto read = reader->read(document.text);
                std::cout << std::format("{:<16}{:<12}{:>12}{:>12}{:>12}\n", document.name,
                                         reader->name(), document.text.size(), peak - before,
                                         inUse - before);
            }
        }
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "bench-json-memory: " << error.what() << '\n';
        return 1;
    }
}
