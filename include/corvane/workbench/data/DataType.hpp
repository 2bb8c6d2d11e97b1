#pragma once

#include <cstdint>

namespace corvane::workbench::data {

/// The type of an attribute's value in the data model of the runtime.
///
/// A small value that the library carries through unchanged; it knows the named constants below,
/// all other pairs are defined by the runtime.
struct DataType {
    /// One pair of numbers, which only the runtime interprets.
    /// @{
    std::uint32_t kind = 0;
    std::uint32_t size = 0;
    /// @}

    /// Compares field by field.
    friend constexpr bool operator==(const DataType&, const DataType&) noexcept = default;

    /// The type of the predefined attributes' values; see model::Attribute.
    /// @{
    static const DataType kDeviceState;
    static const DataType kText;
    static const DataType kTimeStamp;
    static const DataType kUuid;
    static const DataType kQuality;
    static const DataType kElementCategory;
    /// @}

    /// The type of an attribute of which nothing is known, as custom elements have it.
    static const DataType kAny;
};

inline constexpr DataType DataType::kDeviceState{0, 1};
inline constexpr DataType DataType::kText{4, 8};
inline constexpr DataType DataType::kTimeStamp{5, 0};
inline constexpr DataType DataType::kUuid{6, 0};
inline constexpr DataType DataType::kQuality{7, 0};
inline constexpr DataType DataType::kElementCategory{8, 0};
inline constexpr DataType DataType::kAny{11, 0};

} // namespace corvane::workbench::data
