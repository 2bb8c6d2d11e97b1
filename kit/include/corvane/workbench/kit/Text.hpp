#pragma once

#include <cstddef>
#include <string_view>

namespace corvane::workbench::kit {

/// A text (UTF-8) that stands in the source as a literal. It lives as long as the skill's library,
/// so descriptions can keep it without a copy. What the user reads of it is translated.
class Text {
public:
    constexpr Text() noexcept = default;
    /// Only literals compile.
    // NOLINTNEXTLINE(google-explicit-constructor): literals are written as they are
    consteval Text(const char* literal) : text_(literal), size_(std::string_view(literal).size()) {}

    /// Terminated by a null character.
    [[nodiscard]] constexpr const char* data() const noexcept { return text_; }
    /// Whether there is no character, as in a text that was left out.
    [[nodiscard]] constexpr bool empty() const noexcept { return size_ == 0; }
    /// The text without the null character.
    // NOLINTNEXTLINE(google-explicit-constructor): is one
    constexpr operator std::string_view() const noexcept { return {text_, size_}; }

private:
    const char* text_ = "";
    std::size_t size_ = 0;
};

} // namespace corvane::workbench::kit
