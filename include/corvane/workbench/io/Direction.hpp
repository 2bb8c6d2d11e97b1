#pragma once

#include <cstdint>

namespace corvane::workbench::io {

/// The directions in which a member of an element takes part in input and output.
///
/// The enumeration belongs to the runtime; the library stores and copies its values and never
/// interprets them. A set of directions is a utils::core::Flags<Direction>, in which
/// reading is the bit of value 1 and writing the bit of value 2.
enum class Direction : std::int32_t {
    Read = 0,
    Write = 1,
};

} // namespace corvane::workbench::io
