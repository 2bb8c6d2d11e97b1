#pragma once

#include <corvane/workbench/bindings/PropertyId.hpp>

namespace corvane::workbench::bindings {

/// A static object that stands for one property.
///
/// Names one property by its own address. Declare one static object per property:
///
///     static const PropertyKey kSpeed;
///
/// It cannot be copied, since a copy would be another property.
class PropertyKey {
public:
    constexpr PropertyKey() noexcept {}
    PropertyKey(const PropertyKey&) = delete;
    PropertyKey& operator=(const PropertyKey&) = delete;
    ~PropertyKey() = default;

    /// The property's identifier, the same for the life of the key.
    [[nodiscard]] PropertyId id() const noexcept {
        return PropertyId(PropertyId::kInternalConstructor, &place_);
    }
    /// Implicit, so that a key stands wherever an identifier is expected.
    operator PropertyId() const noexcept { return id(); }

private:
    // Writable, so that no linker folds two keys into one read-only object.
    mutable char place_ = 0;
};

} // namespace corvane::workbench::bindings
