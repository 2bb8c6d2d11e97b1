#pragma once

// A thread whose stack has a size of the test's choice, which std::thread cannot ask for.

#include <cstddef>
#include <functional>

namespace corvane::tests {

/// Runs the action to its end on a thread of its own. No exception may leave the action.
/// Wine gives no thread less than 1 MiB; Windows and Linux keep to the size.
/// @throws std::system_error when the thread cannot be made.
void runOnStack(std::size_t size, const std::function<void()>& action);

} // namespace corvane::tests
