#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace corvane::bench {

/// Puts the other libraries' times beside ours once all benchmarks have run.
///
/// Shows the benchmarks as usual. At the end it says, on the standard error stream, how many times
/// as long as ours each library's median CPU time is.
class Comparison final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    /// As the command line asks for; there is one such reporter, which is not ours.
    benchmark::BenchmarkReporter& shown_ = *benchmark::CreateDefaultDisplayReporter();

    using Times = std::map<std::string, std::vector<double>>;

    /// By the task (what is done with which document) and the library.
    std::map<std::string, Times> times_;
};

} // namespace corvane::bench
