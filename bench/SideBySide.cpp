#include "SideBySide.hpp"

#include <algorithm>
#include <ctime>
#include <stdexcept>
#include <utility>

namespace corvane::bench {

namespace {

constexpr std::size_t kRounds = 31;
constexpr double kNanosecondsPerTurn = 3e6;

double timeOf(const SideBySide::Way& way, std::size_t times) {
    const std::clock_t begin = std::clock();
    way(times);
    return static_cast<double>(std::clock() - begin) * (1e9 / CLOCKS_PER_SEC);
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

} // namespace

void SideBySide::add(std::string name, Way way) {
    contenders_.push_back({.name = std::move(name), .way = std::move(way), .rounds = {}});
}

void SideBySide::run() {
    for (Contender& contender : contenders_) {
        while (timeOf(contender.way, contender.times) < kNanosecondsPerTurn) {
            contender.times *= 2;
        }
    }
    for (std::size_t round = 0; round < kRounds; ++round) {
        for (Contender& contender : contenders_) {
            contender.rounds.push_back(timeOf(contender.way, contender.times) /
                                       static_cast<double>(contender.times));
        }
    }
}

double SideBySide::nanoseconds(std::string_view name) const {
    return median(find(name).rounds);
}

double SideBySide::ratio(std::string_view name, std::string_view other) const {
    std::vector<double> ratios = find(name).rounds;
    std::ranges::transform(ratios, find(other).rounds, ratios.begin(), std::divides());
    return median(std::move(ratios));
}

const SideBySide::Contender& SideBySide::find(std::string_view name) const {
    const auto found = std::ranges::find(contenders_, name, &Contender::name);
    if (found == contenders_.end()) {
        throw std::invalid_argument("nothing was timed under this name");
    }
    return *found;
}

} // namespace corvane::bench
