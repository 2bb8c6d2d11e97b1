#pragma once

#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/process/TaskReference.hpp>
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

/// A row in the list of the tasks that a timer triggers.
class TriggeredTask final : public corvane::workbench::skill::SubElement {
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

    corvane::workbench::process::TaskReference task_;
};

} // namespace pump_station
