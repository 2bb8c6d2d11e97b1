#pragma once

#include <corvane/workbench/export.hpp>

namespace corvane::workbench::bindings {

class PropertyController;

/// The base of every property value that refers to another element.
///
/// Remembers which controller owns the property that holds this value, so that the value can ask
/// it to publish the property when the referenced element changes.
///
/// The link belongs to the place where the object sits, never to its value: a copy starts without
/// one, and an assignment leaves the target's own. Nothing clears the link, so the object must not
/// outlive the controller it was registered with.
class CORVANE_WORKBENCH_EXPORT CrossReferenceController {
public:
    CrossReferenceController() noexcept = default;
    /// A copy has no link, and an assignment leaves the target's own.
    /// @{
    CrossReferenceController(const CrossReferenceController&) noexcept {}
    CrossReferenceController(CrossReferenceController&&) noexcept {}
    CrossReferenceController& operator=(const CrossReferenceController&) noexcept { return *this; }
    CrossReferenceController& operator=(CrossReferenceController&&) noexcept { return *this; }
    /// @}

    /// Tells the controller nothing.
    virtual ~CrossReferenceController() = 0;

    /// The controller that owns the property, or null before registration.
    [[nodiscard]] PropertyController* referringController() const noexcept {
        return referringController_;
    }
    /// Replaces the link. Controllers call it while they are configured.
    void setReferringController(PropertyController& controller) noexcept {
        referringController_ = &controller;
    }

private:
    PropertyController* referringController_ = nullptr;
};

} // namespace corvane::workbench::bindings
