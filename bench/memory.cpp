// Shows how many bytes of memory an element of a loaded configuration takes in the reference
// workbench: 100,000 elements with three references each, and as many with none. Counts what the
// allocator has given out, with its own overhead.
//
//     bench-memory [--check] [--json]
//
// --check exits with 1 when a figure exceeds its bar.
#include <memory>

#include "Figures.hpp"
#include "host/TestSkill.hpp"
#include "plant.hpp"
#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/workbench/host/Workbench.hpp>

#include <malloc.h>

#include <cstddef>
#include <cstdint>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>

namespace {

namespace host = corvane::workbench::host;

constexpr std::int64_t kElements = 100'000;

std::size_t bytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

double bytesPerElement(bool withReferences) {
    const std::string text = corvane::bench::plant(kElements, withReferences);
    const std::size_t before = bytesInUse();
    host::Workbench workbench;
    corvane::utils::io::MemoryInputStream<char> stream(text);
    if (!workbench.addSkill(corvane::tests::testSkill()) ||
        !workbench.loadConfiguration(stream, "benchmark")) {
        throw std::logic_error("the benchmark's configuration does not load");
    }
    return static_cast<double>(bytesInUse() - before) / static_cast<double>(kElements);
}

} // namespace

int main(int argc, char** argv) {
    try {
        corvane::bench::Figures figures(argc, argv);
        figures.add("an element with three references, bytes", bytesPerElement(true), 5'000);
        figures.add("an element with none, bytes", bytesPerElement(false), 3'000);
        return figures.finish();
    } catch (const std::exception& error) {
        std::cerr << "bench-memory: " << error.what() << '\n';
        return 2;
    }
}
