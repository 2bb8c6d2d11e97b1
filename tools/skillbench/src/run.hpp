#pragma once

// The whole program but for the console.

#include "Streams.hpp"

#include <span>
#include <string>

namespace corvane::skillbench {

/// Runs the command that the first argument (UTF-8, without the program's name) names, and returns
/// the exit code. Throws nothing but std::bad_alloc.
int run(std::span<const std::string> arguments, const Streams& streams);

} // namespace corvane::skillbench
