#pragma once

#include "AlarmLimit.hpp"
#include "MeasuringRange.hpp"
#include "SubElementList.hpp"
#include "rules.hpp"
#include <corvane/workbench/skill/Element.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace pump_station {

/// A measured value with its alarm limits. Shows a list of sub-elements: rows with properties of
/// their own, whose changes reach the list property, and a rule over all rows.
class Measurement final : public corvane::workbench::skill::Element {
public:
    Measurement();
    Measurement(const Measurement& other);

    void forEachEditableProperty(
        corvane::utils::core::function_ref<void(const corvane::workbench::skill::EditableProperty&)>
            callback) override;

private:
    void configureProperties(PropertyConfigurationContext& context) override;
    void load(corvane::utils::json::decoder::Object& object,
              corvane::workbench::config::Context& context) override;
    void save(corvane::utils::json::encoder::Object& object) const override;
    void makeDefault() override;
    bool forEachAttribute(
        const corvane::utils::core::function_ref<bool(const corvane::workbench::model::Attribute&)>&
            callback) const override;
    bool forEachEvent(
        const corvane::utils::core::function_ref<bool(const corvane::workbench::process::Event&)>&
            callback) const override;

    [[nodiscard]] std::unique_ptr<AlarmLimit> proposedLimit(std::size_t index) const;
    [[nodiscard]] State limitsState() const;
    void publishThresholdStates() const;

    std::string unit_;
    std::int64_t channel_ = 0;
    MeasuringRange range_;
    SubElementList<AlarmLimit> alarmLimits_;
};

} // namespace pump_station
