#pragma once

#include <string_view>

namespace corvane::tests {

/// The id of the skill of the library that is loaded with the program. Calling it is what ties the
/// program to the library: a library of which nothing is used is not loaded.
std::string_view linkedSkillId();

} // namespace corvane::tests
