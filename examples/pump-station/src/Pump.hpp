#pragma once

#include <corvane/workbench/skill/Element.hpp>

#include <string>

namespace pump_station {

/// A pump with its drive. Shows a value that follows from other settings, and attributes that
/// depend on a setting.
class Pump final : public corvane::workbench::skill::Element {
public:
    enum class Drive { FixedSpeed, VariableSpeed };

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

    [[nodiscard]] std::wstring specificEnergyText() const;

    Drive drive_ = Drive::FixedSpeed;
    double ratedPower_ = 0; // kW
    double ratedFlow_ = 0;  // m³/h
    double minimumSpeed_ = 0;
    double maximumSpeed_ = 0;
};

} // namespace pump_station
