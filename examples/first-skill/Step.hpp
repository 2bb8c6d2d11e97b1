#pragma once

#include "names.hpp"
#include <corvane/workbench/kit/Form.hpp>
#include <corvane/workbench/kit/Row.hpp>
#include <corvane/workbench/model/ElementReference.hpp>

#include <cstdint>
#include <string>

namespace first_skill {

/// A step of a mixer's recipe.
class Step final : public kit::Row {
public:
    std::int64_t speed = 0;

private:
    void describe(kit::Form& form) override;

    std::string ingredient_;
    /// The mixer that must have finished before the step begins; may be empty.
    model::ElementReference waitsFor_;
};

} // namespace first_skill
