#pragma once

#include "Step.hpp"
#include "names.hpp"
#include <corvane/workbench/kit/Element.hpp>
#include <corvane/workbench/model/AttributeReference.hpp>

#include <cstdint>

namespace first_skill {

/// A mixer: its top speed, another mixer whose speed it follows, and the steps of its recipe.
class Mixer final : public kit::Element {
    void describe(kit::Form& form) override;
    kit::State stepsState() const;

    std::int64_t topSpeed_ = 0;
    model::AttributeReference leader_;
    std::int64_t share_ = 100;
    kit::Rows<Step> steps_;
};

} // namespace first_skill
