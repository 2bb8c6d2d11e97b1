#pragma once

#include "SubElementList.hpp"
#include "WeightedInput.hpp"
#include "rules.hpp"
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/skill/Element.hpp>

namespace pump_station {

/// A microservice that sets the speed of a pump from weighted attributes. Shows a reference to an
/// element of one class, and a list whose rows hold references.
class PumpBalancer final : public corvane::workbench::skill::Element {
public:
    PumpBalancer();
    PumpBalancer(const PumpBalancer& other);

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
    bool forEachTask(
        const corvane::utils::core::function_ref<bool(const corvane::workbench::process::Task&)>&
            callback) const override;

    [[nodiscard]] State pumpState() const;

    corvane::workbench::model::ElementReference pump_;
    double gain_ = 1;
    SubElementList<WeightedInput> inputs_;
};

} // namespace pump_station
