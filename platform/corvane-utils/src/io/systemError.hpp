#pragma once

// What a call of the system says when it fails.

#include <system_error>

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>
#endif

namespace corvane::utils::io {

/// @throws std::system_error always: the reason why the last call of the system has failed, as
///         errno has it where there is such a value, without a text.
[[noreturn]] inline void throwSystemError() {
#ifdef _WIN32
    const std::error_code code(static_cast<int>(GetLastError()), std::system_category());
    const std::error_condition condition = code.default_error_condition();
    if (condition.category() == std::generic_category()) {
        throw std::system_error(condition.value(), std::generic_category());
    }
    throw std::system_error(code);
#else
    throw std::system_error(errno, std::generic_category());
#endif
}

} // namespace corvane::utils::io
