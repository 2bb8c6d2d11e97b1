#pragma once

// Stops a fuzz target when something that is promised does not hold.

#include <cstdio>
#include <cstdlib>

namespace corvane::fuzz {

inline void promise(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "broken promise: %s\n", what);
        std::abort();
    }
}

} // namespace corvane::fuzz
