// Times reading (with the destruction of what was read) and writing of JSON beside other libraries.
//
//     bench-json [--check] [--json] [FILE...]
//
// The files take the place of the generated documents. Shows microseconds for ourselves, and how
// many times as long as each other library we take. --check exits with 1 when a figure exceeds its
// bar.
#include "Figures.hpp"
#include "Reader.hpp"
#include "SideBySide.hpp"
#include "documents.hpp"
#include "json/collidingNames.hpp"

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

#include <algorithm>
#include <exception>
#include <format>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace corvane::bench;
using namespace corvane::tests;

constexpr std::string_view kOurs = "corvane";

/// The highest ratios that are accepted, by the other library.
using Bars = std::map<std::string_view, double>;

const Reader& ours() {
    return **std::ranges::find(Reader::all(), kOurs, &Reader::name);
}

void compare(Figures& figures, const std::string& task, const Bars& bars,
             const std::function<SideBySide::Way(const Reader&)>& way) {
    SideBySide sideBySide;
    for (const Reader* const reader : Reader::all()) {
        sideBySide.add(reader->name(), way(*reader));
    }
    sideBySide.run();
    figures.add(task + ", \u00B5s", sideBySide.nanoseconds(kOurs) / 1000);
    for (const Reader* const reader : Reader::all()) {
        if (reader->name() != kOurs) {
            const auto bar = bars.find(reader->name());
            figures.add(std::format("    of {}", reader->name()),
                        sideBySide.ratio(kOurs, reader->name()),
                        bar != bars.end() ? std::optional(bar->second) : std::nullopt);
        }
    }
}

SideBySide::Way reading(const Reader& reader, const std::string& text) {
    return [&reader, &text](std::size_t times) {
        for (std::size_t time = 0; time != times; ++time) {
            static_cast<void>(reader.read(text));
        }
    };
}

void compareReading(Figures& figures, const Document& document, const Bars& bars) {
    compare(figures, "read " + document.name, bars,
            [&](const Reader& reader) { return reading(reader, document.text); });
}

void compareWriting(Figures& figures, const Document& document, const Bars& bars) {
    compare(figures, "write " + document.name, bars, [&](const Reader& reader) -> SideBySide::Way {
        const std::shared_ptr<const ReadDocument> read = reader.read(document.text);
        return [read](std::size_t times) {
            for (std::size_t time = 0; time != times; ++time) {
                static_cast<void>(read->write());
            }
        };
    });
}

/// Names that were chosen to collide in a hash table, beside names of the same length that were
/// not.
void compareNames(Figures& figures) {
    const auto chosen = findCollidingNames(160'000, std::hash<std::string_view>());
    const std::string chosenText = objectWithNames(chosen);
    const std::string ordinaryText = objectWithNames(ordinaryNamesLike(chosen));
    SideBySide sideBySide;
    sideBySide.add("chosen", reading(ours(), chosenText));
    sideBySide.add("ordinary", reading(ours(), ordinaryText));
    sideBySide.run();
    figures.add("read 160000 members with ordinary names, \u00B5s",
                sideBySide.nanoseconds("ordinary") / 1000);
    figures.add("    with names that collide under std::hash, of that",
                sideBySide.ratio("chosen", "ordinary"), 3.0);
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
        // What is no option is a file.
        char** const files = std::stable_partition(
            argv + 1, argv + argc, [](std::string_view text) { return text.starts_with("--"); });
        Figures figures(static_cast<int>(files - argv), argv);
        for (const Document& document : documentsFrom({files, argv + argc})) {
            const bool isOfDoubles = document.name == "outlines" || document.name == "canada";
            // Boost's default does not promise the nearest double.
            const std::string_view peer = isOfDoubles ? "boost precise" : "boost";
            compareReading(figures, document, {{peer, 1.0}});
            compareWriting(figures, document, {{"boost", 1.0}});
        }
        for (const Document& document : textDocuments()) {
            compareReading(figures, document, {});
            compareWriting(figures, document, {{"boost", 1.5}});
        }
        const Document document = smallDocument();
        compareReading(figures, document, {{"boost", 1.0}});
        compareWriting(figures, document, {{"boost", 1.0}});
        compareNames(figures);
        return figures.finish();
    } catch (const std::exception& error) {
        std::cerr << "bench-json: " << error.what() << '\n';
        return 2;
    }
}
