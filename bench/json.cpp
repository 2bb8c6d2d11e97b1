// Times reading (with the destruction of what was read) and writing of JSON, side by side, and says
// at the end how they compare.
//
//     bench-json [FILE...] [--benchmark_...]
//
// The files take the place of the generated documents.
#include "Comparison.hpp"
#include "Reader.hpp"
#include "documents.hpp"

#include <benchmark/benchmark.h>

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace corvane::bench;

void addBenchmarks(const Reader& reader, const Document& document) {
    const auto bytes = [&document](benchmark::State& state) {
        state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                                static_cast<std::int64_t>(document.text.size()));
    };
    benchmark::RegisterBenchmark("read/" + document.name + "/" + reader.name(),
                                 [&reader, &document, bytes](benchmark::State& state) {
                                     for (auto _ : state) {
                                         benchmark::DoNotOptimize(reader.read(document.text));
                                     }
                                     bytes(state);
                                 });
    benchmark::RegisterBenchmark("write/" + document.name + "/" + reader.name(),
                                 [&reader, &document, bytes](benchmark::State& state) {
                                     const auto read = reader.read(document.text);
                                     for (auto _ : state) {
                                         benchmark::DoNotOptimize(read->write());
                                     }
                                     bytes(state);
                                 });
}

/// Memory that goes back to the system and is fetched again costs as much as what is timed here,
/// and whether it does depends on what was timed before.
void keepFreedMemory() {
#if defined(M_TRIM_THRESHOLD) && defined(M_MMAP_THRESHOLD)
    constexpr int kMebibyte = 1 << 20;
    mallopt(M_TRIM_THRESHOLD, 1024 * kMebibyte);
    mallopt(M_MMAP_THRESHOLD, 32 * kMebibyte); // the highest that is accepted
#endif
}

} // namespace

int main(int argc, char** argv) {
    try {
        keepFreedMemory();
        benchmark::Initialize(&argc, argv);
        std::vector<Document> documents;
        for (int argument = 1; argument < argc; ++argument) {
            documents.push_back(documentFromFile(argv[argument]));
        }
        if (documents.empty()) {
            documents = generatedDocuments();
        }
        for (const Document& document : documents) {
            for (const Reader* const reader : Reader::all()) {
                addBenchmarks(*reader, document);
            }
        }
        Comparison comparison;
        benchmark::RunSpecifiedBenchmarks(&comparison);
        benchmark::Shutdown();
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "bench-json: " << error.what() << '\n';
        return 1;
    }
}
