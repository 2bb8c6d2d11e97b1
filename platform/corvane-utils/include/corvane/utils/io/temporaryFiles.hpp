#pragma once

// For programs that want nothing left behind when they are interrupted. The library itself handles
// no signals.

#include <corvane/utils/export.hpp>

namespace corvane::utils::io {

/// Removes the temporary files of all FileOutputStreams that are neither closed nor destroyed; to
/// close such a stream fails from then on. For a program that is about to end: it may be called in
/// a signal handler and on any thread. Of more than 64 streams that are open at a time the later
/// ones are not known here.
CORVANE_UTILS_EXPORT void removeTemporaryFiles() noexcept;

} // namespace corvane::utils::io
