#include "Measurement.hpp"

#include <corvane/workbench/kit/translate.hpp>

#include <algorithm>
#include <vector>

namespace pump_station {

using model::Attribute;

void Measurement::describe(kit::Form& form) {
    form.text("unit", "Unit", unit_)
        .initially("m")
        .required("Enter the unit of the measured value.");
    form.integer("channel", "Channel", channel_)
        .initially(1)
        .range(1, 512, "The channel must lie between 1 and 512.");
    form.number("rangeLow", "Range start", rangeLow_).initially(0).then([this] {
        alarmLimits_.recheck();
    });
    form.number("rangeHigh", "Range end", rangeHigh_)
        .initially(10)
        .rule([this] { return rangeHigh_ > rangeLow_; },
              "The end of the measuring range must lie above its start.", rangeLow_)
        .then([this] { alarmLimits_.recheck(); });
    form.rows("alarmLimits", "Alarm limits", alarmLimits_)
        .proposes(&AlarmLimit::threshold, [this] { return (rangeHigh_ - rangeLow_) / 10; })
        .rule([this] { return limitsState(); })
        .savedWhenNotInitial();

    form.attribute("value", Attribute::Access::ReadOnly, kDouble);
    form.attribute(Attribute::kQuality);
    form.attribute(Attribute::kSourceTime);
    form.event(process::Event::kChanged);
    form.event("limitExceeded");
}

kit::State Measurement::limitsState() const {
    std::vector<const AlarmLimit*> limits;
    for (const AlarmLimit& limit : alarmLimits_) {
        limits.push_back(&limit);
    }
    std::ranges::stable_sort(limits, {}, &AlarmLimit::kind);
    for (std::size_t index = 1; index < limits.size(); ++index) {
        const AlarmLimit& lower = *limits[index - 1];
        const AlarmLimit& upper = *limits[index];
        if (lower.kind == upper.kind) {
            return kit::error("There must be no more than one limit “{}”.", lower.kindText());
        }
        if (lower.threshold >= upper.threshold) {
            return kit::error("The limit “{}” must lie above the limit “{}”.", upper.kindText(),
                              lower.kindText());
        }
    }
    return {};
}

} // namespace pump_station
