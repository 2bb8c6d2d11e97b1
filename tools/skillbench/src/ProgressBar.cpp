#include "ProgressBar.hpp"

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <string_view>
#include <utility>

namespace corvane::skillbench {

namespace {

using workbench::host::LoadProgress;

std::string_view nameOf(LoadProgress::Stage stage) {
    switch (stage) {
    case LoadProgress::Stage::Reading:
        return "reading   ";
    case LoadProgress::Stage::Elements:
        return "elements  ";
    case LoadProgress::Stage::References:
        return "references";
    case LoadProgress::Stage::Properties:
        return "properties";
    }
    return "loading   ";
}

} // namespace

ProgressBar::ProgressBar(std::ostream& terminal, std::chrono::milliseconds patience)
    : terminal_(terminal), start_(std::chrono::steady_clock::now() + patience) {}

ProgressBar::~ProgressBar() {
    if (!shown_.empty()) {
        terminal_ << '\r' << std::string(shown_.size(), ' ') << '\r' << std::flush;
    }
}

void ProgressBar::show(const LoadProgress& progress) {
    if (std::chrono::steady_clock::now() < start_) {
        return;
    }
    std::string next = line(progress);
    // Covers what a longer line left.
    next.append(shown_.size() - std::min(shown_.size(), next.size()), ' ');
    if (next != shown_) {
        shown_ = std::move(next);
        terminal_ << '\r' << shown_ << std::flush;
    }
}

std::string ProgressBar::line(const LoadProgress& progress) {
    constexpr std::size_t kWidth = 30;
    std::string result(nameOf(progress.stage));
    result += ' ';
    if (progress.total == 0) {
        return result + std::to_string(progress.done);
    }
    const double share =
        std::min(1.0, static_cast<double>(progress.done) / static_cast<double>(progress.total));
    const auto filled = static_cast<std::size_t>(share * static_cast<double>(kWidth));
    const std::string percent = std::to_string(static_cast<int>(share * 100));
    result += '[';
    result.append(filled, '#');
    result.append(kWidth - filled, ' ');
    result += "] ";
    result.append(3 - percent.size(), ' ');
    return result + percent + " %";
}

} // namespace corvane::skillbench
