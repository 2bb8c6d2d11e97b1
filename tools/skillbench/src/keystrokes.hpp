#pragma once

// Keystrokes written as text: each character is a key, other keys stand in angle brackets.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::skillbench {

class TextBox;

struct Keystroke {
    /// As it was written.
    std::string name;
    /// Presses the key; returns whether that was an edit.
    std::function<bool(TextBox&)> press;
};

/// Throws a UsageFailure for an unknown name in angle brackets.
[[nodiscard]] std::vector<Keystroke> parseKeystrokes(std::string_view text);

/// The names, each with its brackets, separated by spaces.
[[nodiscard]] std::string keyNames();

} // namespace corvane::skillbench
