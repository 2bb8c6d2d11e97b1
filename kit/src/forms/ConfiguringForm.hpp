#pragma once

#include <corvane/workbench/bindings/PropertyIdRange.hpp>
#include <corvane/workbench/kit/Form.hpp>

#include <functional>
#include <string>
#include <vector>

namespace corvane::workbench::kit::internal {

/// Tells a property controller how its properties behave.
class ConfiguringForm final : public Form {
public:
    using Context = bindings::PropertyController::PropertyConfigurationContext;

    ConfiguringForm(const Subject& subject, Context& context)
        : Form(subject, Purpose::Configure), context_(context) {}

    /// What is done whenever the value of a property is published that nobody else knows. It
    /// depends on references and lists, which change without the form.
    struct Trigger {
        bindings::PropertyId property;
        std::function<void()> action;
    };

    /// Returns what the subject is to subscribe to.
    [[nodiscard]] std::vector<Trigger> configure();

private:
    void take(Description& description) override;
    void addTrigger(const std::string& name, bindings::PropertyIdRange dependencies,
                    std::function<void()> action);
    void configureDisplayName(bindings::PropertyIdRange dependencies);

    Context& context_;
    /// The first setting of a row, which names it unless it has a display name of its own.
    bindings::PropertyId first_;
    bool hasDisplayName_ = false;
    std::vector<bindings::PropertyId> memberDependencies_;
    std::vector<Trigger> triggers_;
};

} // namespace corvane::workbench::kit::internal
