#pragma once

#include <tl/expected.hpp>

#include <cstdint>
#include <filesystem>
#include <string>

namespace corvane::workbench::host {

/// Something that is wrong with a configuration, a skill library or a request, said in one sentence
/// and located where it can be. Every operation of the reference workbench that can fail for a
/// reason outside the program says so with a Problem.
struct Problem {
    /// How bad it is.
    enum class Severity {
        /// The configuration, or the part of it that is meant, is not right.
        Error,
        /// It can be used as it is but deserves a look.
        Warning
    };

    /// The file that is meant; empty when it is none.
    std::filesystem::path file;
    /// Position in the file, counted from 1, the column in bytes; 0 when unknown.
    /// @{
    std::uint64_t line = 0;
    std::uint64_t column = 0;
    /// @}

    /// Whether it keeps the configuration from being used as it is.
    Severity severity = Severity::Error;
    /// What is wrong (UTF-8), without file and position.
    std::string text;

    /// Compares field by field.
    friend bool operator==(const Problem&, const Problem&) = default;
};

/// The problem as compilers print theirs: `FILE:LINE:COLUMN: error: TEXT`. Parts that are unknown
/// are left out. UTF-8.
[[nodiscard]] std::string toString(const Problem& problem);

/// What an operation returns, or why it failed.
template <class T>
using Result = tl::expected<T, Problem>;

} // namespace corvane::workbench::host
