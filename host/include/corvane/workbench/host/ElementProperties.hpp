#pragma once

#include <corvane/workbench/bindings/PropertyContainer.hpp>

#include <cstdint>

namespace corvane::workbench::host {

class ElementNode;

/// Carries the error counts of an element and of everything below it up to the root: the container
/// around the property controller that the skill element is and around the containers of the
/// children.
///
/// Part of an ElementNode; does not outlive it.
class ElementProperties final : public bindings::PropertyContainer {
public:
    explicit ElementProperties(ElementNode& element) noexcept : element_(element) {}
    ElementProperties(const ElementProperties&) = delete;
    ElementProperties& operator=(const ElementProperties&) = delete;
    ~ElementProperties() override = default;

    [[nodiscard]] ElementNode& element() const noexcept { return element_; }

    /// Counts anew what is directly below, after elements were linked without counting.
    void recount();

private:
    void forEachSubPropertyContainer(
        const utils::core::function_ref<void(bindings::PropertyContainer&)>& callback,
        bool includeInvisible) override;
    void forEachLocalCrossReference(
        const utils::core::function_ref<void(bindings::CrossReferenceController&)>& callback,
        bool includeInvisible) override;
    [[nodiscard]] std::uint64_t localPropertyErrorCount() const override;
    void propertyNotificationRaised(const bindings::PropertyId& property) override;

    ElementNode& element_;
};

} // namespace corvane::workbench::host
