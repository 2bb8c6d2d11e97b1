#pragma once

#include "Input.hpp"
#include "names.hpp"
#include <corvane/workbench/kit/Element.hpp>

#include <string>

namespace @NAMESPACE@ {

/// Say here what the element is for.
class @CLASS@ final : public kit::Element {
    enum class Mode { Manual, Automatic };

    void describe(kit::Form& form) override;
    [[nodiscard]] kit::State inputsState() const;

    std::string location_;
    Mode mode_ = Mode::Manual;
    double limit_ = 0;
    kit::Rows<Input> inputs_;
};

} // namespace @NAMESPACE@
