#pragma once

#include <corvane/workbench/export.hpp>

#include <compare>
#include <string>
#include <string_view>

namespace corvane::workbench::i18n {

/// The place of a text in the order in which names are shown to the user. Keys compare as
/// SortOrdering compares the texts, but much faster, because the work is done once for each text:
/// worth it from a list of a few dozen texts on.
///
/// A value. Keys are good for comparisons within one process only: they depend on the user's
/// language and on the version of the system's rules.
class CORVANE_WORKBENCH_EXPORT SortKey {
public:
    /// Takes the first 2147483647 code units of the UTF-16 text. May be called from any thread.
    explicit SortKey(std::wstring_view text);

    friend std::weak_ordering operator<=>(const SortKey& left,
                                          const SortKey& right) noexcept = default;
    friend bool operator==(const SortKey& left, const SortKey& right) noexcept = default;

private:
    // Compare byte by byte.
    std::string bytes_;
};

} // namespace corvane::workbench::i18n
