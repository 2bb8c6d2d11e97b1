#pragma once

#include <corvane/workbench/host/LoadProgress.hpp>

#include <algorithm>
#include <cstdint>
#include <functional>

namespace corvane::workbench::host {

/// Reports the progress of one stage of a load, not more often than it matters.
class ProgressReport {
public:
    /// Where the total is not known (0), every thousandth step is reported.
    ProgressReport(const std::function<bool(const LoadProgress&)>& callback,
                   LoadProgress::Stage stage, std::uint64_t total)
        : callback_(callback), progress_(stage, 0, total),
          step_(total == 0 ? 1000 : std::max<std::uint64_t>(total / 100, 1)) {
        goOn_ = report();
    }

    /// Counts on. False when the callback has said to give up.
    [[nodiscard]] bool advance(std::uint64_t count = 1) {
        progress_.done += count;
        if (goOn_ && progress_.done >= next_) {
            goOn_ = report();
        }
        return goOn_;
    }

    /// Reports the end of the stage.
    [[nodiscard]] bool finish() {
        if (goOn_) {
            progress_.total = progress_.done;
            goOn_ = report();
        }
        return goOn_;
    }

private:
    [[nodiscard]] bool report() {
        next_ = progress_.done + step_;
        return !callback_ || callback_(progress_);
    }

    const std::function<bool(const LoadProgress&)>& callback_;
    LoadProgress progress_;
    std::uint64_t step_;
    std::uint64_t next_ = 0;
    bool goOn_ = true;
};

} // namespace corvane::workbench::host
