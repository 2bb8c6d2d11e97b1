#pragma once

#include "names.hpp"
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <cstdint>
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

namespace by_hand {

/// A step of a mixer's recipe: a row of its list.
class Step final : public workbench::skill::SubElement {
public:
    /// The mixer's property that holds the steps.
    static const workbench::bindings::PropertyKey kList;

    std::string ingredient;
    std::int64_t speed = 100;
    /// The mixer that must have finished before the step begins; may be empty.
    workbench::model::ElementReference waitsFor;

    void load(utils::json::decoder::Value& row, workbench::config::Context& context);
    void saveTo(utils::json::encoder::Array& rows) const;

    std::wstring displayName() const override;
    void forEachEditableProperty(
        utils::core::function_ref<void(const workbench::skill::EditableProperty&)> callback)
        override;

private:
    void configureProperties(PropertyConfigurationContext& context) override;

    PropertyState waitsForState() const;
};

} // namespace by_hand
