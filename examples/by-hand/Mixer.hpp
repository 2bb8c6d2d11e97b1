#pragma once

#include "Steps.hpp"
#include "names.hpp"
#include <corvane/workbench/model/AttributeReference.hpp>
#include <corvane/workbench/skill/Element.hpp>

#include <cstdint>

namespace by_hand {

/// A mixer: its top speed, another mixer whose speed it follows, and the steps of its recipe.
class Mixer final : public workbench::skill::Element {
public:
    void forEachEditableProperty(
        utils::core::function_ref<void(const workbench::skill::EditableProperty&)> callback)
        override;

private:
    void configureProperties(PropertyConfigurationContext& context) override;
    void load(utils::json::decoder::Object& object, workbench::config::Context& context) override;
    void save(utils::json::encoder::Object& object) const override;
    void makeDefault() override;
    bool forEachAttribute(const utils::core::function_ref<bool(const workbench::model::Attribute&)>&
                              callback) const override;

    PropertyState leaderState() const;
    PropertyState stepsState() const;

    std::int64_t topSpeed_ = 0;
    workbench::model::AttributeReference leader_;
    std::int64_t share_ = 100;
    Steps steps_;
};

} // namespace by_hand
