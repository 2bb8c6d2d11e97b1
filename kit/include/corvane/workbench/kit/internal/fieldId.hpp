#pragma once

// The identifiers of described properties. A setting is named by the place of its field in the
// object that describes it, so that all instances of a class agree and copies need no care.

#include <corvane/workbench/bindings/PropertyId.hpp>

#include <string_view>

namespace corvane::workbench::bindings {
class PropertyController;
}
namespace corvane::workbench::model::internal {
class BasicElementReference;
}

namespace corvane::workbench::kit::internal {

/// The identifier of the setting that a field holds. A reference is a property under an identifier
/// of its own, made from its address.
[[nodiscard]] bindings::PropertyId fieldId(const bindings::PropertyController& owner,
                                           const void* field) noexcept;
[[nodiscard]] bindings::PropertyId
fieldId(const bindings::PropertyController& owner,
        const model::internal::BasicElementReference* field) noexcept;
/// The identifier of a property without a field.
[[nodiscard]] bindings::PropertyId nameId(std::string_view name) noexcept;
/// What every setting of a row raises; its list publishes itself instead.
[[nodiscard]] bindings::PropertyId rowChangedId() noexcept;

} // namespace corvane::workbench::kit::internal
