#pragma once

#include <iosfwd>

namespace corvane::skillbench {

/// Where a command writes: UTF-8, with "\n" at the end of a line on every platform.
struct Streams {
    std::ostream& out;
    std::ostream& err;
    /// Whether somebody watches `err`, so that a long load shows how far it has come.
    bool showsProgress = false;
};

} // namespace corvane::skillbench
