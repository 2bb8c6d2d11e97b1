// Times what the reference workbench does with many references. All of it should take the same time
// per element or reference, however many there are: the column per_item says how long. At each size
// there are as many workbenches as make 100,000 items in all, so that the memory, and with it how
// well the caches serve, is the same.
#include "host/TestSkill.hpp"
#include "plant.hpp"
#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/workbench/host/Workbench.hpp>

#include <benchmark/benchmark.h>

#include <cstdint>
#include <ctime>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

namespace host = corvane::workbench::host;
using corvane::bench::plant;
using corvane::bench::plantKey;

/// `references` rows outside the plant that refer to its points, a thousand to an element.
std::string plantWithWatchers(std::int64_t elements, std::int64_t references) {
    std::string text = plant(elements);
    text.resize(text.size() - 2);
    for (std::int64_t number = 0; number < references; ++number) {
        if (number % 1000 == 0) {
            text += number == 0 ? "" : "]}}";
            text += R"(,{"point": {"name": "w)" + std::to_string(number / 1000) + R"(", "rows": [)";
        } else {
            text += ',';
        }
        const std::int64_t target = number % elements;
        text += plantKey(target);
    }
    return text + "]}}]}";
}

std::unique_ptr<host::Workbench> loaded(const std::string& text) {
    auto workbench = std::make_unique<host::Workbench>();
    corvane::utils::io::MemoryInputStream<char> stream(text);
    if (!workbench->addSkill(corvane::tests::testSkill()) ||
        !workbench->loadConfiguration(stream, "benchmark")) {
        throw std::logic_error("the benchmark's configuration does not load");
    }
    return workbench;
}

constexpr std::int64_t kItems = 100'000;

using Workbenches = std::vector<std::unique_ptr<host::Workbench>>;

Workbenches loadedCopies(std::int64_t count, const std::string& text) {
    Workbenches workbenches;
    for (std::int64_t number = 0; number < count; ++number) {
        workbenches.push_back(loaded(text));
    }
    return workbenches;
}

/// Runs the loop on the processor time of the action alone, and shows the time per item.
template <class Prepare, class Action>
void measure(benchmark::State& state, Prepare&& prepare, Action&& action) {
    double total = 0;
    for (auto _ : state) {
        auto&& prepared = prepare();
        const std::clock_t begin = std::clock();
        action(prepared);
        const double time = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
        state.SetIterationTime(time);
        total += time;
    }
    state.counters["per_item"] =
        total / (static_cast<double>(kItems) * static_cast<double>(state.iterations()));
}

/// Elements with three references each, from text to tree.
void load(benchmark::State& state) {
    const std::string text = plant(state.range(0));
    const std::int64_t count = kItems / state.range(0);
    measure(
        state, [] { return Workbenches(); },
        [&](Workbenches& workbenches) { workbenches = loadedCopies(count, text); });
}

/// An element with that many references to what is below it.
void rename(benchmark::State& state) {
    // The plant's own references count as well.
    const std::string text = plantWithWatchers(100, state.range(0) - 300);
    const Workbenches workbenches = loadedCopies(kItems / state.range(0), text);
    std::string name = "plant";
    measure(
        state, [&]() -> std::string& { return name; },
        [&](std::string& oldName) {
            const std::string newName = oldName == "plant" ? "factory" : "plant";
            for (const auto& workbench : workbenches) {
                if (!workbench->rename(oldName, newName)) {
                    throw std::logic_error("the element is not renamed");
                }
            }
            oldName = newName;
        });
}

/// A subtree of that many elements, each referred to from outside.
void remove(benchmark::State& state) {
    const std::string text = plantWithWatchers(state.range(0), state.range(0));
    measure(
        state, [&] { return loadedCopies(kItems / state.range(0), text); },
        [](Workbenches& workbenches) {
            for (const auto& workbench : workbenches) {
                if (!workbench->remove("plant")) {
                    throw std::logic_error("the element is not removed");
                }
            }
        });
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->UseManualTime()->Unit(benchmark::kMillisecond);
    benchmark->Arg(1'000)->Arg(10'000)->Arg(100'000);
}

BENCHMARK(load)->Apply(sizes);
BENCHMARK(rename)->Apply(sizes);
BENCHMARK(remove)->Apply(sizes);

} // namespace

BENCHMARK_MAIN();
