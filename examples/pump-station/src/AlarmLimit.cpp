#include "AlarmLimit.hpp"

#include "Measurement.hpp"
#include <corvane/workbench/kit/seconds.hpp>
#include <corvane/workbench/kit/translate.hpp>

#include <array>

namespace pump_station {

using chrono::Duration;

namespace {

constexpr std::array<kit::Text, 4> kKindTexts{"low-low", "low", "high", "high-high"};

} // namespace

std::wstring AlarmLimit::kindText() const {
    return kit::text(kKindTexts[static_cast<std::size_t>(kind)]);
}

void AlarmLimit::describe(kit::Form& form) {
    form.choice("kind", "Kind", kind, kKindTexts).initially(Kind::High);
    form.number("threshold", "Threshold", threshold).rule([this] { return thresholdState(); });
    form.duration("delay", "Delay", delay_)
        .rule([](const Duration& delay) { return kit::seconds(delay) >= 0; },
              "The delay must not be negative.");
    form.text("message", "Message", message_)
        .required("Enter the message that the operator reads.");
    form.displayName([this] { return kit::text("{} at {}", kindText(), threshold); })
        .follows(kind, threshold);
}

kit::State AlarmLimit::thresholdState() const {
    const Measurement& measurement = owner<Measurement>();
    if (threshold >= measurement.rangeLow() && threshold <= measurement.rangeHigh()) {
        return {};
    }
    return kit::error("The threshold must lie within the measuring range, {} to {}.",
                      measurement.rangeLow(), measurement.rangeHigh());
}

} // namespace pump_station
