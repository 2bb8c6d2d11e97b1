#pragma once

// Paths in error messages.

#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>

namespace corvane::utils::io {

/// The path as UTF-8, whatever the platform's narrow encoding is.
[[nodiscard]] inline std::string pathText(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

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
