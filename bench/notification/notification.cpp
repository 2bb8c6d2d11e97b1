// Times the calling of subscribers beside other libraries, and what a controller of properties
// costs beyond that.
//
//     bench-notification [--check] [--json]
//
// Shows nanoseconds for ourselves, and for the comparisons how many times as long we take. --check
// exits with 1 when a figure exceeds its bar.
#include "../Figures.hpp"
#include "../SideBySide.hpp"
#include "Peer.hpp"
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>

#include <exception>
#include <format>
#include <functional>
#include <iostream>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace {

using namespace corvane::bench;
using namespace corvane::workbench::bindings;

constexpr std::string_view kOurs = "corvane";

/// The highest ratios that are accepted, by the other library.
using Bars = std::map<std::string_view, double>;

void compare(Figures& figures, const std::string& task, std::size_t perTime, const Bars& bars,
             const std::function<SideBySide::Way(Subject&)>& way, std::size_t subscribers) {
    std::size_t calls = 0;
    std::vector<std::unique_ptr<Subject>> subjects;
    SideBySide sideBySide;
    for (const Peer* const peer : Peer::all()) {
        subjects.push_back(peer->subject(subscribers, calls));
        sideBySide.add(std::string(peer->name()), way(*subjects.back()));
    }
    sideBySide.run();
    figures.add(task + ", ns", sideBySide.nanoseconds(kOurs) / static_cast<double>(perTime));
    for (const Peer* const peer : Peer::all()) {
        if (peer->name() != kOurs) {
            const auto bar = bars.find(peer->name());
            figures.add(std::format("    of {}", peer->name()),
                        sideBySide.ratio(kOurs, peer->name()),
                        bar != bars.end() ? std::optional(bar->second) : std::nullopt);
        }
    }
}

void comparePublications(Figures& figures) {
    const auto publish = [](Subject& subject) -> SideBySide::Way {
        return [&subject](std::size_t times) { subject.publish(times); };
    };
    compare(figures, "publish to 1 subscriber", 1, {{"libsigc++", 0.5}}, publish, 1);
    const Bars bars{{"libsigc++", 1.4}, {"bare loop", 2.0}};
    compare(figures, "publish to 16 subscribers, each", 16, bars, publish, 16);
    compare(figures, "publish to 1024 subscribers, each", 1024, bars, publish, 1024);
}

void compareSubscriptions(Figures& figures) {
    for (const std::size_t others : {0U, 16U, 1024U}) {
        compare(
            figures, std::format("subscribe and reset beside {}", others), 1, {{"libsigc++", 0.5}},
            [](Subject& subject) -> SideBySide::Way {
                return [&subject](std::size_t times) { subject.subscribeAndReset(times); };
            },
            others);
    }
}

/// Has many properties, one of which changes its state.
class ManyProperties final : public PropertyController {
public:
    explicit ManyProperties(std::size_t count) : keys_(count) {
        static_cast<void>(propertyVisible(keys_.front()));
    }

    void changeState(std::size_t times) {
        for (std::size_t time = 0; time < times; ++time) {
            good_ = !good_;
            publishState(keys_[keys_.size() / 2]);
        }
    }

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        for (const PropertyKey& key : keys_) {
            context.configure(key, {.state = [this, &key] { return state(key); }});
        }
    }
    PropertyState state(const PropertyKey& key) const {
        if (good_ || &key != &keys_[keys_.size() / 2]) {
            return {};
        }
        return tl::unexpected<std::wstring>(L"wrong");
    }

    std::vector<PropertyKey> keys_;
    bool good_ = true;
};

void compareStateChanges(Figures& figures) {
    SideBySide sideBySide;
    ManyProperties one(1);
    ManyProperties thousand(1'000);
    ManyProperties tenThousand(10'000);
    sideBySide.add("1", [&](std::size_t times) { one.changeState(times); });
    sideBySide.add("1000", [&](std::size_t times) { thousand.changeState(times); });
    sideBySide.add("10000", [&](std::size_t times) { tenThousand.changeState(times); });
    sideBySide.run();
    figures.add("change the state of the only property, ns", sideBySide.nanoseconds("1"));
    figures.add("    among 1000, of that", sideBySide.ratio("1000", "1"), 1.3);
    figures.add("    among 10000, of that", sideBySide.ratio("10000", "1"), 1.3);
}

/// A row as lists have many of: made, configured and destroyed.
class Row final : public PropertyController {
public:
    explicit Row(const std::vector<PropertyKey>& keys) : keys_(keys) {}

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        for (const PropertyKey& key : keys_) {
            context.configure(key, {.state = [this] { return PropertyState(); }});
        }
    }

    const std::vector<PropertyKey>& keys_;
};

/// The least that a row can be: a map from its properties to their functions.
void fillMap(const std::vector<PropertyKey>& keys) {
    struct Functions {
        std::function<PropertyController::PropertyState()> state;
        std::function<bool()> visibility;
    };
    std::unordered_map<PropertyId, Functions> map;
    for (const PropertyKey& key : keys) {
        map[key].state = [&map] {
            static_cast<void>(map);
            return PropertyController::PropertyState();
        };
    }
    for (const auto& [id, functions] : map) {
        static_cast<void>(functions.state());
    }
}

void compareConfigurations(Figures& figures) {
    for (const std::size_t count : {1U, 3U, 10U, 100U}) {
        const std::vector<PropertyKey> keys(count);
        SideBySide sideBySide;
        sideBySide.add("row", [&](std::size_t times) {
            for (std::size_t time = 0; time < times; ++time) {
                const Row row(keys);
                static_cast<void>(row.propertyErrorCount());
            }
        });
        sideBySide.add("map", [&](std::size_t times) {
            for (std::size_t time = 0; time < times; ++time) {
                fillMap(keys);
            }
        });
        sideBySide.run();
        figures.add(std::format("configure {} properties, each, ns", count),
                    sideBySide.nanoseconds("row") / static_cast<double>(count));
        figures.add("    of a map of functions", sideBySide.ratio("row", "map"));
    }
}

} // namespace

int main(int argc, char** argv) {
    try {
        Figures figures(argc, argv);
        comparePublications(figures);
        compareSubscriptions(figures);
        compareStateChanges(figures);
        compareConfigurations(figures);
        return figures.finish();
    } catch (const std::exception& error) {
        std::cerr << "bench-notification: " << error.what() << '\n';
        return 2;
    }
}
