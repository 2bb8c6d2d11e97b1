#pragma once

// The catalogue of this skill: every element class, with its id in configuration files, its
// category and what it may hold. The objects live as long as the library is loaded.

#include <span>

namespace pump_station {

class ElementClass;

/// All classes, in the order in which a user would look for them.
[[nodiscard]] std::span<const ElementClass* const> allElementClasses();

/// The class of pumps, for elements that accept only a pump.
[[nodiscard]] const ElementClass& pumpClass();

} // namespace pump_station
