#pragma once

// Failures that name a path.

#include <corvane/utils/io/pathText.hpp>

#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>

namespace corvane::utils::io {

/// What the system said last; streams report failures only through errno.
[[nodiscard]] inline std::error_code lastError() noexcept {
    return errno != 0 ? std::error_code(errno, std::generic_category())
                      : std::make_error_code(std::errc::io_error);
}

/// @throws std::system_error always, "cannot VERB PATH: REASON".
[[noreturn]] inline void throwPathError(const char* verb, const std::filesystem::path& path,
                                        std::error_code reason) {
    throw std::system_error(reason, std::string("cannot ") + verb + ' ' + pathText(path));
}

} // namespace corvane::utils::io
