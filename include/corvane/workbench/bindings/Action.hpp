#pragma once

#include <cstdint>

namespace corvane::workbench::bindings {

/// What kind of edit changed a property's value.
///
/// Describes a change of a value to its subscribers, together with an index. Publishers choose it,
/// controllers pass it on untouched.
enum class Action : std::uint32_t {
    Update = 0, ///< the value changed; also used when nothing more is known
    Insert = 1, ///< an item was inserted at the index
    Remove = 2, ///< the item at the index was removed
    Move = 3,   ///< an item was moved to the index
};

} // namespace corvane::workbench::bindings
