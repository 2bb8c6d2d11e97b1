#pragma once

#include <chrono>
#include <iosfwd>
#include <optional>

namespace corvane::skillbench {

/// Where a command reads and writes: UTF-8, with "\n" at the end of a line on every platform.
struct Streams {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    /// When somebody watches `err`, a load that takes longer than this shows there how far it has
    /// come.
    std::optional<std::chrono::milliseconds> progressAfter{};
};

} // namespace corvane::skillbench
