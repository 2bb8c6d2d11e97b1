#pragma once

#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/skill/Element.hpp>

namespace pump_station {

/// A valve that shuts a pipe or controls its flow.
class Valve final : public corvane::workbench::skill::Element {
public:
    enum class Kind { ShutOff, Control };
    enum class FailPosition { Open, Closed, Hold };

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
    bool forEachTask(
        const corvane::utils::core::function_ref<bool(const corvane::workbench::process::Task&)>&
            callback) const override;

    Kind kind_ = Kind::ShutOff;
    corvane::workbench::chrono::Duration travelTime_;
    FailPosition failPosition_ = FailPosition::Hold;
    double minimumOpening_ = 0; // percent
};

} // namespace pump_station
