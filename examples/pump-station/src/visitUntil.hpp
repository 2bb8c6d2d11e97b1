#pragma once

// The walk over an element's attributes, events or tasks: until a visitor has seen enough.

#include <algorithm>

namespace pump_station {

/// Calls the callback with each item until it returns true; returns whether it did.
template <class Items, class Callback>
bool visitUntil(const Items& items, const Callback& callback) {
    return std::ranges::any_of(items, [&](const auto& item) { return callback(item); });
}

} // namespace pump_station
