#pragma once

#include <corvane/workbench/skill/Element.hpp>

#include <string>

namespace pump_station {

/// An element that only holds others: an area of the station, or a group of measurements. Two
/// element classes share it. The smallest complete element: read this one first.
class Group final : public corvane::workbench::skill::Element {
public:
    void forEachEditableProperty(
        corvane::utils::core::function_ref<void(const corvane::workbench::skill::EditableProperty&)>
            callback) override;

private:
    void load(corvane::utils::json::decoder::Object& object,
              corvane::workbench::config::Context& context) override;
    void save(corvane::utils::json::encoder::Object& object) const override;
    void makeDefault() override;

    std::string description_;
};

} // namespace pump_station
