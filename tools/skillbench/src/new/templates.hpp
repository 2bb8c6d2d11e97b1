#pragma once

// The files of a new project. They stand beside this file and are embedded in the program.

#include <span>
#include <string_view>

namespace corvane::skillbench {

/// A file with places such as "@CLASS@" in its path and its text.
struct Template {
    std::string_view path;
    std::string_view text;
};

[[nodiscard]] std::span<const Template> templates();

} // namespace corvane::skillbench
