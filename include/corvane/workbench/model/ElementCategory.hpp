#pragma once

#include <corvane/utils/core/Flags.hpp>
#include <corvane/workbench/export.hpp>

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string_view>

namespace corvane::workbench::model {

/// The kinds of element in a configuration, and their names.
///
/// The numbers are fixed: they are bit positions in sets of categories. CustomElement is last on
/// purpose; an element of that category passes every category check and has every member that is
/// asked of it (see Element).
enum class ElementCategory : std::int32_t {
    RootElement = 0,
    ElementGroup = 1,
    DataPoint = 2,
    Timer = 3,
    ExecutionTrack = 4,
    ExecutionPipeline = 5,
    Device = 6,
    SubDevice = 7,
    DeviceGroup = 8,
    DataPointGroup = 9,
    Transaction = 10,
    Microservice = 11,
    AI = 12,
    DataStorage = 13,
    ExternalInterface = 14,
    SpecialPurpose = 15,
    CustomElement = 16,
};

/// The lower-case name of a category, which is also its name for the user, such as "data point";
/// "unknown" for a value that is no enumerator. The view lives as long as the program and is
/// never empty. Exists for char, char8_t, char16_t, char32_t and wchar_t.
template <class Char>
[[nodiscard]] CORVANE_WORKBENCH_EXPORT std::basic_string_view<Char>
toBasicString(ElementCategory category) noexcept;

/// Writes the name of a category. A value that is no enumerator is written as "unknown (17)",
/// where the number is the value read as an unsigned 64-bit one, formatted as the stream formats
/// such numbers; -1 is therefore written as 18446744073709551615.
CORVANE_WORKBENCH_EXPORT std::ostream& operator<<(std::ostream& stream, ElementCategory category);

} // namespace corvane::workbench::model

/// A set of categories has one bit for each enumerator; to test another one is an error.
template <>
inline constexpr std::size_t
    corvane::utils::core::kFlagCount<corvane::workbench::model::ElementCategory> = 17;
