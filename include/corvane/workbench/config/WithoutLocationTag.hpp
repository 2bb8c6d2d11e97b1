#pragma once

namespace corvane::workbench::config {

/// Selects the constructor of a key that comes from no configuration file. See
/// Context::ReferenceKey.
struct WithoutLocationTag {
    explicit constexpr WithoutLocationTag() = default;
};

/// The tag's one value.
inline constexpr WithoutLocationTag kWithoutLocation{};

} // namespace corvane::workbench::config
