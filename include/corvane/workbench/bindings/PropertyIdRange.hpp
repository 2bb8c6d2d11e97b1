#pragma once

#include <corvane/workbench/bindings/PropertyId.hpp>

#include <concepts>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <type_traits>

namespace corvane::workbench::bindings {

/// A borrowed list of property identifiers.
///
/// The first and the one-past-last element of a contiguous list of identifiers that somebody else
/// owns. It is made to be passed in a call: a braced list lives until the end of the full
/// expression, so do not keep a range (nor a PropertyConfiguration with one) that was made from a
/// braced list in a variable.
class PropertyIdRange {
public:
    constexpr PropertyIdRange() noexcept = default;
    /// From `first` up to `last`, which is not included.
    constexpr PropertyIdRange(const PropertyId* first, const PropertyId* last) noexcept
        : first_(first), last_(last) {}
    /// From a braced list; see above for how long it lives.
    constexpr PropertyIdRange(std::initializer_list<PropertyId> list) noexcept
        : PropertyIdRange(std::span<const PropertyId>(list.begin(), list.size())) {}
    /// From an array, a vector, a span, or anything else that converts to a span.
    /// @{
    template <class List>
        requires(!std::same_as<std::remove_cvref_t<List>, PropertyIdRange> &&
                 std::convertible_to<const List&, std::span<const PropertyId>>)
    constexpr PropertyIdRange(const List& list) noexcept
        : PropertyIdRange(static_cast<std::span<const PropertyId>>(list)) {}
    constexpr PropertyIdRange(std::span<const PropertyId> list) noexcept
        : first_(list.data()), last_(list.data() + list.size()) {}
    /// @}

    /// As in a standard range.
    /// @{
    [[nodiscard]] constexpr const PropertyId* begin() const noexcept { return first_; }
    [[nodiscard]] constexpr const PropertyId* end() const noexcept { return last_; }
    [[nodiscard]] constexpr std::size_t size() const noexcept {
        return static_cast<std::size_t>(last_ - first_);
    }
    [[nodiscard]] constexpr bool empty() const noexcept { return first_ == last_; }
    /// @}

private:
    const PropertyId* first_ = nullptr;
    const PropertyId* last_ = nullptr;
};

} // namespace corvane::workbench::bindings
