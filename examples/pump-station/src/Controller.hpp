#pragma once

#include <corvane/utils/core/Uuid.hpp>
#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/json/Object.hpp>
#include <corvane/workbench/skill/Element.hpp>

#include <cstdint>
#include <string>

namespace pump_station {

/// A controller on the network, with its pumps, valves and data points. Shows visibility that
/// depends on a choice, a rule that compares two settings, durations, a time stamp and a UUID.
class Controller final : public corvane::workbench::skill::Element {
public:
    enum class Security { None, Certificate };

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

    std::string address_;
    std::int64_t port_ = 0;
    Security security_ = Security::None;
    std::string certificate_;
    corvane::workbench::chrono::Duration pollInterval_;
    corvane::workbench::chrono::Duration reconnectDelay_;
    /// Canonical or empty: not commissioned yet.
    std::string commissioned_;
    corvane::utils::core::Uuid assetId_;
    /// What the controller's driver needs; this skill keeps it without knowing its meaning.
    corvane::workbench::json::Object settings_;
};

} // namespace pump_station
