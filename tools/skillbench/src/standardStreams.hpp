#pragma once

namespace corvane::skillbench {

/// Names the standard input or output where a file is expected.
inline constexpr const char* kStandardStream = "-";

} // namespace corvane::skillbench
