#pragma once

#include <corvane/utils/export.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace corvane::utils::string {

namespace detail {

/// @throws std::length_error always, with the text
///         "corvane::utils::string::BasicStaticString: size of N exceeds capacity of M".
[[noreturn]] CORVANE_UTILS_EXPORT void throwStaticStringLengthError(std::size_t size,
                                                                    std::size_t capacity);

} // namespace detail

/// A text with room for Capacity characters inside the object: it never allocates. A plain value.
///
/// Every operation that would make the text longer than its capacity throws std::length_error
/// and leaves the text as it was.
template <class Char, std::size_t Capacity>
class BasicStaticString {
public:
    /// The character, and a borrowed text of such characters.
    /// @{
    using value_type = Char;
    using View = std::basic_string_view<Char>;
    /// @}

    constexpr BasicStaticString() noexcept = default;
    /// Copies the text.
    constexpr explicit BasicStaticString(View text) { append(text); }

    /// In characters.
    /// @{
    [[nodiscard]] static constexpr std::size_t capacity() noexcept { return Capacity; }
    [[nodiscard]] constexpr std::size_t size() const noexcept { return size_; }
    [[nodiscard]] constexpr bool empty() const noexcept { return size_ == 0; }
    /// @}

    /// The characters; they are not terminated by a null character.
    [[nodiscard]] constexpr const Char* data() const noexcept { return characters_.data(); }
    /// Valid until the text changes.
    /// @{
    [[nodiscard]] constexpr const Char* begin() const noexcept { return data(); }
    [[nodiscard]] constexpr const Char* end() const noexcept { return data() + size_; }
    [[nodiscard]] constexpr View view() const noexcept { return View(data(), size_); }
    constexpr operator View() const noexcept { return view(); }
    /// @}

    /// @throws std::length_error when the text becomes too long.
    constexpr BasicStaticString& append(View text) {
        if (text.size() > Capacity - size_) {
            detail::throwStaticStringLengthError(size_ + text.size(), Capacity);
        }
        std::copy(text.begin(), text.end(), characters_.data() + size_);
        size_ += text.size();
        return *this;
    }
    /// @throws std::length_error when the text becomes too long.
    constexpr void push_back(Char character) { append(View(&character, 1)); }
    /// Leaves an empty text.
    constexpr void clear() noexcept { size_ = 0; }

    /// Replaces the text by what `write(begin, end)` writes into the whole capacity; it returns
    /// the end of what it wrote.
    template <class Write>
    constexpr void overwrite(Write write) {
        Char* const begin = characters_.data();
        size_ = static_cast<std::size_t>(write(begin, begin + Capacity) - begin);
    }

    /// Compares the texts alone, whatever the capacity still holds behind them.
    /// @{
    [[nodiscard]] friend constexpr bool operator==(const BasicStaticString& left,
                                                   const BasicStaticString& right) noexcept {
        return left.view() == right.view();
    }
    [[nodiscard]] friend constexpr bool operator==(const BasicStaticString& left,
                                                   View right) noexcept {
        return left.view() == right;
    }
    /// @}

private:
    std::array<Char, Capacity> characters_{};
    std::size_t size_ = 0;
};

} // namespace corvane::utils::string
