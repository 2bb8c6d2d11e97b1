#pragma once

#include <corvane/workbench/export.hpp>

#include <compare>
#include <string_view>

namespace corvane::workbench::i18n {

/// The order in which names are shown to the user.
///
/// An empty function object for std::sort and ordered containers; all objects are alike.
class CORVANE_WORKBENCH_EXPORT SortOrdering {
public:
    SortOrdering() = default;
    /// There is nothing to copy: all objects are alike.
    /// @{
    SortOrdering(const SortOrdering&) = default;
    SortOrdering(SortOrdering&&) = default;
    SortOrdering& operator=(const SortOrdering&) noexcept { return *this; }
    SortOrdering& operator=(SortOrdering&&) noexcept { return *this; }
    /// @}

    /// Compares two UTF-16 texts as the user's language does, without regard to case, and runs of
    /// digits by their value: "Item 2" comes before "item 10". Texts that differ only in case are
    /// equivalent. Texts are compared up to their 2147483647th code unit.
    ///
    /// May be called from any thread. The language is read once per process outside Windows.
    [[nodiscard]] std::weak_ordering operator()(std::wstring_view left,
                                                std::wstring_view right) const;
};

} // namespace corvane::workbench::i18n
