#pragma once

#include "names.hpp"
#include <corvane/workbench/kit/Form.hpp>
#include <corvane/workbench/kit/Row.hpp>
#include <corvane/workbench/model/AttributeReference.hpp>

#include <string>

namespace @NAMESPACE@ {

/// A row of the list of inputs: an attribute of another element, and its share.
class Input final : public kit::Row {
public:
    double share = 0;

private:
    void describe(kit::Form& form) override;
    [[nodiscard]] std::wstring displayText() const;

    model::AttributeReference source_;
};

} // namespace @NAMESPACE@
