#pragma once

#include <corvane/workbench/host/LoadProgress.hpp>

#include <chrono>
#include <iosfwd>
#include <string>

namespace corvane::skillbench {

/// One line that says how far a load has come. It appears when the load takes long and disappears
/// when it ends, so that short loads show nothing.
class ProgressBar {
public:
    static constexpr std::chrono::milliseconds kPatience{300};

    /// Shows nothing for as long as `patience`.
    ProgressBar(std::ostream& terminal, std::chrono::milliseconds patience);
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;
    /// Takes the line away.
    ~ProgressBar();

    void show(const workbench::host::LoadProgress& progress);

    /// The line without its end, such as "reading    [##########          ]  50 %".
    [[nodiscard]] static std::string line(const workbench::host::LoadProgress& progress);

private:
    std::ostream& terminal_;
    std::chrono::steady_clock::time_point start_;
    std::string shown_;
};

} // namespace corvane::skillbench
