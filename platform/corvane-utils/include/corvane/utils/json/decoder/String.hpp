#pragma once

#include <cstddef>
#include <string_view>

namespace corvane::utils::json::decoder {

/// A JSON string: a range of the characters (UTF-8) that it stands for. Valid while its Document
/// lives.
class String {
public:
    /// What a standard range of characters declares.
    /// @{
    using value_type = char;
    using const_iterator = std::string_view::const_iterator;
    /// @}

    /// The characters that the string stands for: without quotation marks, escapes resolved.
    /// @{
    [[nodiscard]] std::string_view view() const noexcept { return text_; }
    [[nodiscard]] std::size_t size() const noexcept { return text_.size(); }
    [[nodiscard]] bool empty() const noexcept { return text_.empty(); }
    [[nodiscard]] const_iterator begin() const noexcept { return text_.begin(); }
    [[nodiscard]] const_iterator end() const noexcept { return text_.end(); }
    /// @}

private:
    friend class Value;

    explicit String(std::string_view text) noexcept : text_(text) {}

    std::string_view text_;
};

} // namespace corvane::utils::json::decoder
