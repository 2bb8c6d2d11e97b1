#pragma once

// What is said when a skill ends the process: by an exception that nobody catches, std::terminate,
// abort, exit, or a signal such as that of a segmentation fault.

#include <string>
#include <string_view>

namespace corvane::skillbench {

class LineBuffer;

/// The configuration that is worked on, for what has to be said about one of its elements. A very
/// long name is cut.
void setConfigurationName(std::string_view name) noexcept;
[[nodiscard]] std::string configurationName();

/// From now on the end of the process by a skill is reported on the standard error stream, in one
/// line behind the whole lines of the output; interruptions leave no temporary files behind. The
/// end itself is as it would have been, but that exit() becomes a failure.
void reportAbnormalEnd(LineBuffer& output);

} // namespace corvane::skillbench
