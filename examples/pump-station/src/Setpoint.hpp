#pragma once

#include "MeasuringRange.hpp"
#include <corvane/workbench/process/EventReference.hpp>
#include <corvane/workbench/skill/Element.hpp>

#include <string>

namespace pump_station {

/// A wanted value. It is fixed, or follows an event: shows a reference to an event, which is
/// there only while it is needed.
class Setpoint final : public corvane::workbench::skill::Element {
public:
    enum class Mode { Fixed, Follow };

    Setpoint();

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

    std::string unit_;
    MeasuringRange range_;
    double value_ = 0;
    Mode mode_ = Mode::Fixed;
    corvane::workbench::process::EventReference event_;
};

} // namespace pump_station
