#pragma once

#include <corvane/workbench/bindings/PropertyController.hpp>

#include <functional>
#include <string>

namespace corvane::workbench::bindings::test {

/// A property controller whose properties a test describes.
class TestController : public PropertyController {
public:
    using Context = PropertyConfigurationContext;

    TestController() = default;
    explicit TestController(std::function<void(Context&)> describe)
        : onConfigure(std::move(describe)) {}

    using PropertyContainer::subPropertyContainerAdded;
    using PropertyContainer::subPropertyContainerListChanged;
    using PropertyContainer::subPropertyContainerRemoved;
    using PropertyController::propertyId;

    std::function<void(Context&)> onConfigure;
    int configurations = 0;

private:
    void configureProperties(Context& context) override {
        ++configurations;
        if (onConfigure) {
            onConfigure(context);
        }
    }
};

[[nodiscard]] inline PropertyController::PropertyState failure(std::wstring text = L"wrong") {
    return tl::unexpected<std::wstring>(std::move(text));
}

[[nodiscard]] inline PropertyController::PropertyState success() {
    return {};
}

[[nodiscard]] inline PropertyController::PropertyState successIf(bool good) {
    return good ? success() : failure();
}

} // namespace corvane::workbench::bindings::test
