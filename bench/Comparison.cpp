#include "Comparison.hpp"

#include <algorithm>
#include <cstddef>
#include <format>
#include <ostream>

namespace corvane::bench {

namespace {

constexpr const char* kOurs = "corvane";

double median(std::vector<double> times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::ranges::nth_element(times, middle);
    return *middle;
}

} // namespace

bool Comparison::ReportContext(const Context& context) {
    return shown_.ReportContext(context);
}

void Comparison::ReportRuns(const std::vector<Run>& runs) {
    shown_.ReportRuns(runs);
    for (const Run& run : runs) {
        const std::string& name = run.run_name.function_name;
        const std::size_t slash = name.rfind('/');
        if (run.run_type != Run::RT_Iteration || run.skipped || slash == std::string::npos) {
            continue;
        }
        times_[name.substr(0, slash)][name.substr(slash + 1)].push_back(run.GetAdjustedCPUTime());
    }
}

void Comparison::Finalize() {
    shown_.Finalize();
    std::ostream& out = GetErrorStream();
    out << "\nHow many times as fast as each library we are:\n\n";
    for (const auto& [task, times] : times_) {
        const auto ours = times.find(kOurs);
        if (ours == times.end()) {
            continue;
        }
        out << task << '\n';
        for (const auto& [library, libraryTimes] : times) {
            if (library != kOurs) {
                out << std::format("    {:<12}{:6.2f}\n", library,
                                   median(libraryTimes) / median(ours->second));
            }
        }
    }
}

} // namespace corvane::bench
