#pragma once

#include "SubElementList.hpp"
#include "TriggeredTask.hpp"
#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/skill/Element.hpp>

namespace pump_station {

/// A timer that triggers tasks at a regular interval. Shows a list of references.
class SamplingTimer final : public corvane::workbench::skill::Element {
public:
    SamplingTimer();
    SamplingTimer(const SamplingTimer& other);

    void forEachEditableProperty(
        corvane::utils::core::function_ref<void(const corvane::workbench::skill::EditableProperty&)>
            callback) override;

private:
    void configureProperties(PropertyConfigurationContext& context) override;
    void load(corvane::utils::json::decoder::Object& object,
              corvane::workbench::config::Context& context) override;
    void save(corvane::utils::json::encoder::Object& object) const override;
    void makeDefault() override;
    bool forEachEvent(
        const corvane::utils::core::function_ref<bool(const corvane::workbench::process::Event&)>&
            callback) const override;

    corvane::workbench::chrono::Duration interval_;
    SubElementList<TriggeredTask> tasks_;
};

} // namespace pump_station
