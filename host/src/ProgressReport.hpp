#pragma once

// Reports the progress of one stage of a load, not more often than it matters.

#include <corvane/workbench/host/LoadProgress.hpp>

#include <algorithm>
#include <cstdint>
#include <functional>

namespace corvane::workbench::host {

class ProgressReport {
public:
    /// Where the total is not known (0), every thousandth step is reported.
    ProgressReport(const std::function<bool(const LoadProgress&)>& callback,
                   LoadProgress::Stage stage, std::uint64_t total)
        : _callback(callback), _progress{stage, 0, total},
          _step(total == 0 ? 1000 : std::max<std::uint64_t>(total / 100, 1)) {
        _goOn = report();
    }

    /// Counts on. False when the callback has said to give up.
    [[nodiscard]] bool advance(std::uint64_t count = 1) {
        _progress.done += count;
        if (_goOn && _progress.done >= _next) {
            _goOn = report();
        }
        return _goOn;
    }

    /// Reports the end of the stage.
    [[nodiscard]] bool finish() {
        if (_goOn) {
            _progress.total = _progress.done;
            _goOn = report();
        }
        return _goOn;
    }

private:
    [[nodiscard]] bool report() {
        _next = _progress.done + _step;
        return !_callback || _callback(_progress);
    }

    const std::function<bool(const LoadProgress&)>& _callback;
    LoadProgress _progress;
    std::uint64_t _step;
    std::uint64_t _next = 0;
    bool _goOn = true;
};

} // namespace corvane::workbench::host
