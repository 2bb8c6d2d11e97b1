#pragma once

#include <cstdint>
#include <string>

namespace corvane::bench {

/// The key of a point of a plant, quoted.
[[nodiscard]] std::string plantKey(std::int64_t number);

/// A configuration of `elements` points below "plant", a hundred to a group, each with three
/// references to points elsewhere in the plant, or with none.
[[nodiscard]] std::string plant(std::int64_t elements, bool withReferences = true);

} // namespace corvane::bench
