#pragma once

#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/model/AttributeReference.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <string>

namespace corvane::utils::json::decoder {
class Value;
}
namespace corvane::utils::json::encoder {
class Array;
}
namespace corvane::workbench::config {
class Context;
}

namespace pump_station {

/// A row in the list of the attributes that a balancer weighs up.
class WeightedInput final : public corvane::workbench::skill::SubElement {
public:
    /// The element's property that holds the rows.
    static const corvane::workbench::bindings::PropertyKey kListProperty;

    void load(corvane::utils::json::decoder::Value& value,
              corvane::workbench::config::Context& context);
    void saveTo(corvane::utils::json::encoder::Array& array) const;

    [[nodiscard]] std::wstring displayName() const override;
    void forEachEditableProperty(
        corvane::utils::core::function_ref<void(const corvane::workbench::skill::EditableProperty&)>
            callback) override;

private:
    void configureProperties(PropertyConfigurationContext& context) override;

    corvane::workbench::model::AttributeReference attribute_;
    double weight_ = 1;
};

} // namespace pump_station
