#pragma once

#include <corvane/utils/core/function_ref.hpp>
#include <corvane/workbench/kit/Form.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>

namespace corvane::workbench::kit::internal {

/// Calls back with each setting as a user interface is to show it.
class ListingForm final : public Form {
public:
    using Callback = utils::core::function_ref<void(const skill::EditableProperty&)>;

    ListingForm(const Subject& subject, Callback callback)
        : Form(subject, Purpose::List), callback_(callback) {}

    void list() { fillIn(); }

private:
    void take(Description& description) override;

    Callback callback_;
};

} // namespace corvane::workbench::kit::internal
