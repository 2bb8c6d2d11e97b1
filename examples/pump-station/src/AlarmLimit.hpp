#pragma once

#include "MeasuringRange.hpp"
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <string>

namespace corvane::utils::json::decoder {
class Value;
}
namespace corvane::utils::json::encoder {
class Array;
}

namespace pump_station {

/// A row in the list of a measurement's alarm limits. Every change of a row is raised as a change
/// of the list property of the measurement.
class AlarmLimit final : public corvane::workbench::skill::SubElement {
public:
    /// From the lowest to the highest.
    enum class Kind { LowLow, Low, High, HighHigh };

    /// The measurement's property that holds the rows.
    static const corvane::workbench::bindings::PropertyKey kListProperty;

    /// A limit within the range, which must outlive it.
    AlarmLimit(const MeasuringRange& range, Kind kind, double threshold);
    /// The same limit for another measurement.
    AlarmLimit(const AlarmLimit& other, const MeasuringRange& range);

    [[nodiscard]] Kind kind() const noexcept { return kind_; }
    [[nodiscard]] double threshold() const noexcept { return threshold_; }

    void load(corvane::utils::json::decoder::Value& value);
    void saveTo(corvane::utils::json::encoder::Array& array) const;
    /// The measurement's range has changed.
    void publishThresholdState() const;

    [[nodiscard]] std::wstring displayName() const override;
    void forEachEditableProperty(
        corvane::utils::core::function_ref<void(const corvane::workbench::skill::EditableProperty&)>
            callback) override;

private:
    void configureProperties(PropertyConfigurationContext& context) override;

    const MeasuringRange& range_;
    Kind kind_;
    double threshold_;
    corvane::workbench::chrono::Duration delay_;
    std::string message_;
};

/// The limit's kind as shown to the user.
[[nodiscard]] std::wstring kindText(AlarmLimit::Kind kind);

} // namespace pump_station
