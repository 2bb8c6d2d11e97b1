#pragma once

#include <corvane/workbench/bindings/PropertyIdRange.hpp>
#include <corvane/workbench/kit/Form.hpp>

#include <vector>

namespace corvane::workbench::kit::internal {

/// Tells a property controller how its properties behave.
class ConfiguringForm final : public Form {
public:
    using Context = bindings::PropertyController::PropertyConfigurationContext;

    ConfiguringForm(const Subject& subject, Context& context)
        : Form(subject, Purpose::Configure), context_(context) {}

    void configure();
    /// The property that is published when a reference or a list changes on which members depend;
    /// empty when there is none.
    [[nodiscard]] bindings::PropertyId memberTrigger() const noexcept;

private:
    void take(Description& description) override;
    void configureDisplayName(bindings::PropertyIdRange dependencies);

    Context& context_;
    /// The first setting of a row, which names it unless it has a display name of its own.
    bindings::PropertyId first_;
    bool hasDisplayName_ = false;
    std::vector<bindings::PropertyId> memberDependencies_;
};

} // namespace corvane::workbench::kit::internal
