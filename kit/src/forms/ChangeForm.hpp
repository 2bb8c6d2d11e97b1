#pragma once

#include <corvane/workbench/bindings/PropertyId.hpp>
#include <corvane/workbench/kit/Form.hpp>

#include <functional>
#include <vector>

namespace corvane::workbench::kit::internal {

/// Finds out what is to be done after a change of one setting.
class ChangeForm final : public Form {
public:
    ChangeForm(const Subject& subject, const bindings::PropertyId& property)
        : Form(subject, Purpose::Change), property_(property) {}

    /// Does it.
    void follow();

private:
    void take(Description& description) override;

    bindings::PropertyId property_;
    std::vector<std::function<void()>> actions_;
    bool membersDepend_ = false;
};

/// Publishes a setting that was changed, and does what follows.
void publishChange(const Subject& subject, const bindings::PropertyId& property);

} // namespace corvane::workbench::kit::internal
