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

void addIfNew(std::vector<std::string>& names, const std::string& name) {
    if (std::ranges::find(names, name) == names.end()) {
        names.push_back(name);
    }
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
        const std::string task = name.substr(0, slash);
        const std::string library = name.substr(slash + 1);
        addIfNew(tasks_, task);
        addIfNew(libraries_, library);
        times_[task][library].push_back(run.GetAdjustedCPUTime());
    }
}

void Comparison::Finalize() {
    shown_.Finalize();
    std::ostream& out = GetErrorStream();
    out << "\nHow many times as fast as each library we are:\n\n";
    std::size_t width = 0;
    for (const std::string& library : libraries_) {
        width = std::max(width, library.size());
    }
    for (const std::string& task : tasks_) {
        Times& times = times_[task];
        if (!times.contains(kOurs)) {
            continue;
        }
        const double ours = median(times[kOurs]);
        out << task << '\n';
        for (const std::string& library : libraries_) {
            if (library != kOurs && times.contains(library)) {
                out << std::format("    {:<{}} {:6.2f}\n", library, width,
                                   median(times[library]) / ours);
            }
        }
    }
}

} // namespace corvane::bench
