#pragma once

// Function objects that skills plug into property bindings: two that complete the text of a box
// while it is typed, and one that proposes the next value of a list. They hold no state but the
// offset, call nobody back and may be used from any thread.

#include <corvane/workbench/export.hpp>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace corvane::workbench::bindings::functional {

/// Rewrites the text of a time stamp box after every edit into "YYYY-MM-DD hh:mm:ss", an optional
/// fraction, and "Z" or an offset such as "+05:30".
///
/// Text is UTF-16 code units; only ASCII digits count as digits. A text that has this form already,
/// with every field within its bounds, is left alone. The day is not compared with the month, and
/// the seconds may read "60". Allocates only if the text outgrows its capacity.
class CORVANE_WORKBENCH_EXPORT AdjustTimeStampText {
public:
    /// Completes `text` in place and keeps the two ends of the box's selection on the characters
    /// that the user was working on; equal ends are a plain cursor. Positions within the text stay
    /// within it. An empty text becomes "2001-01-01 00:00:00Z" and leaves the positions alone.
    void operator()(std::wstring& text, std::uint64_t& selectionStart,
                    std::uint64_t& selectionEnd) const;
};

/// Rewrites the text of a UUID box after every edit into 32 hexadecimal digits in groups of
/// 8-4-4-4-12 joined by "-". Letter case stays as typed.
///
/// Typing into a full UUID overwrites the end of the group that holds the cursor; a missing digit
/// is made up there with "0". Applying it twice gives what applying it once gave. Allocates only if
/// the text outgrows its capacity.
class CORVANE_WORKBENCH_EXPORT AdjustUuidText {
public:
    /// Completes `text` in place and keeps the two ends of the box's selection on the characters
    /// that the user was working on. Positions within the text stay within it.
    void operator()(std::wstring& text, std::uint64_t& selectionStart,
                    std::uint64_t& selectionEnd) const;
};

/// Proposes the value of a new entry in a list of numbers: one offset after its predecessor, one
/// offset before the first entry, or 0 for an empty list.
template <class Number>
class Offset;

/// Steps by a whole number, through lists of whole numbers or of doubles.
template <>
class Offset<int> {
public:
    /// Any offset; a negative one steps down.
    constexpr explicit Offset(int offset) noexcept : offset_(offset) {}

    /// The value for a new entry at `index`, wrapping around on overflow.
    /// @pre `index` is at most the size of `values`; it is not checked
    [[nodiscard]] constexpr int operator()(std::span<const int> values,
                                           std::uint64_t index) const noexcept {
        if (values.empty()) {
            return 0;
        }
        // Unsigned, because there an overflow is defined to wrap.
        const auto offset = static_cast<std::uint32_t>(offset_);
        if (index == 0) {
            return static_cast<int>(static_cast<std::uint32_t>(values.front()) - offset);
        }
        const int predecessor = values[static_cast<std::size_t>(index - 1)];
        return static_cast<int>(static_cast<std::uint32_t>(predecessor) + offset);
    }

    /// The value for a new entry at `index` of a list of doubles.
    /// @pre `index` is at most the size of `values`; it is not checked
    [[nodiscard]] constexpr double operator()(std::span<const double> values,
                                              std::uint64_t index) const noexcept;

private:
    int offset_;
};

/// Steps by any number through a list of doubles.
template <>
class Offset<double> {
public:
    /// Any offset; a negative one steps down.
    constexpr explicit Offset(double offset) noexcept : offset_(offset) {}

    /// The value for a new entry at `index`.
    /// @pre `index` is at most the size of `values`; it is not checked
    [[nodiscard]] constexpr double operator()(std::span<const double> values,
                                              std::uint64_t index) const noexcept {
        if (values.empty()) {
            return 0.0;
        }
        return index == 0 ? values.front() - offset_
                          : values[static_cast<std::size_t>(index - 1)] + offset_;
    }

private:
    double offset_;
};

constexpr double Offset<int>::operator()(std::span<const double> values,
                                         std::uint64_t index) const noexcept {
    return Offset<double>(offset_)(values, index);
}

} // namespace corvane::workbench::bindings::functional
