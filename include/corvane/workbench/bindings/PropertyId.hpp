#pragma once

#include <corvane/workbench/export.hpp>

#include <array>
#include <bit>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>

namespace corvane::workbench::model::internal {
class BasicElementReference;
}

namespace corvane::workbench::skill {
class SubElement;
}

namespace corvane::workbench::bindings {

class PropertyController;
class PropertyKey;

/// The name of one property: a small value, copied freely, without a link to what it names.
///
/// Two 64-bit words that name a property. An identifier is minted either from the address of an
/// object that stands for the property (unique in the process) or from two words of data (a UUID
/// for instance). Only the friends mint identifiers; everybody else declares a PropertyKey or asks
/// the owner of the property.
class CORVANE_WORKBENCH_EXPORT PropertyId {
public:
    /// Restricts the constructor that takes it to the friends, who can name its one value.
    struct InternalConstructorTag {
        explicit InternalConstructorTag() = default;
    };

    /// The empty identifier, which names nothing.
    constexpr PropertyId() noexcept = default;

    /// Compares both words.
    [[nodiscard]] constexpr bool operator==(const PropertyId&) const noexcept = default;
    /// Orders by the first word, then by the second, both unsigned.
    [[nodiscard]] constexpr std::strong_ordering
    operator<=>(const PropertyId&) const noexcept = default;

    /// Whether either word is not zero.
    [[nodiscard]] constexpr explicit operator bool() const noexcept {
        return words_[0] != 0 || words_[1] != 0;
    }

private:
    friend class PropertyController;
    friend class PropertyKey;
    friend class model::internal::BasicElementReference;
    friend class skill::SubElement;
    friend struct std::hash<PropertyId>;

    static constexpr InternalConstructorTag kInternalConstructor{};

    PropertyId(InternalConstructorTag, const void* address) noexcept
        : words_{std::bit_cast<std::uintptr_t>(address), 0} {}
    constexpr PropertyId(InternalConstructorTag, std::array<std::uint64_t, 2> words) noexcept
        : words_(words) {}

    std::array<std::uint64_t, 2> words_{};
};

} // namespace corvane::workbench::bindings

/// @cond
// The first word XOR the second. Addresses make good identifiers but poor bit patterns (their low
// bits are equal), so a table must not use the low bits of this value alone.
template <>
struct std::hash<corvane::workbench::bindings::PropertyId> {
    [[nodiscard]] std::size_t
    operator()(const corvane::workbench::bindings::PropertyId& id) const noexcept {
        return static_cast<std::size_t>(id.words_[0] ^ id.words_[1]);
    }
};
/// @endcond
