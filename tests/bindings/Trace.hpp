#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace corvane::workbench::bindings::test {

/// A record of what happened, in order: words with one space between them.
class Trace {
public:
    void add(std::string_view word) {
        if (!text_.empty()) {
            text_ += ' ';
        }
        text_ += word;
    }

    /// A callback that adds the word.
    [[nodiscard]] auto adder(std::string word) {
        return [this, word = std::move(word)] { add(word); };
    }

    /// What was added since the last call.
    [[nodiscard]] std::string take() { return std::exchange(text_, {}); }

private:
    std::string text_;
};

} // namespace corvane::workbench::bindings::test
