#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace corvane::workbench::bindings::functional::internal {

[[nodiscard]] constexpr bool isDigit(wchar_t character) noexcept {
    return character >= L'0' && character <= L'9';
}

[[nodiscard]] constexpr bool isOneOf(wchar_t character, std::wstring_view set) noexcept {
    return set.find(character) != std::wstring_view::npos;
}

/// The text of a box together with the two ends of its selection, edited so that both ends stay on
/// the characters they stood on. Borrows all three; lives for one call of a text adjuster.
class EditedText {
public:
    EditedText(std::wstring& text, std::uint64_t& selectionStart,
               std::uint64_t& selectionEnd) noexcept
        : text_(text), selectionStart_(selectionStart), selectionEnd_(selectionEnd) {}

    [[nodiscard]] std::size_t size() const noexcept { return text_.size(); }
    [[nodiscard]] std::wstring_view view() const noexcept { return text_; }

    /// The character at `index`, or NUL past the end.
    [[nodiscard]] wchar_t at(std::size_t index) const noexcept {
        return index < text_.size() ? text_[index] : L'\0';
    }

    [[nodiscard]] bool is(std::size_t index, wchar_t character) const noexcept {
        return index < text_.size() && text_[index] == character;
    }

    [[nodiscard]] bool isOneOf(std::size_t index, std::wstring_view set) const noexcept {
        return index < text_.size() && internal::isOneOf(text_[index], set);
    }

    /// Where the next character of `set` stands at or after `from`, or the text's end.
    [[nodiscard]] std::size_t find(std::wstring_view set, std::size_t from) const noexcept {
        return std::min(text_.find_first_of(set, from), text_.size());
    }

    /// Whether there is a plain cursor instead of a selection. Edits can bring the ends together.
    [[nodiscard]] bool hasCursor() const noexcept { return selectionStart_ == selectionEnd_; }
    [[nodiscard]] std::uint64_t cursor() const noexcept { return selectionEnd_; }
    [[nodiscard]] bool hasCursorAt(std::size_t index) const noexcept {
        return hasCursor() && cursor() == index;
    }
    [[nodiscard]] bool hasCursorAfter(std::size_t index) const noexcept {
        return hasCursor() && cursor() > index;
    }

    void replace(std::size_t index, wchar_t character) noexcept { text_[index] = character; }
    void swapWithNext(std::size_t index) noexcept { std::swap(text_[index], text_[index + 1]); }

    void insert(std::size_t index, wchar_t character, std::size_t count = 1) {
        text_.insert(index, count, character);
        for (std::uint64_t* position : {&selectionStart_, &selectionEnd_}) {
            if (*position > index) {
                *position += count;
            }
        }
    }

    void remove(std::size_t index, std::size_t count = 1) noexcept {
        text_.erase(index, count);
        for (std::uint64_t* position : {&selectionStart_, &selectionEnd_}) {
            if (*position > index) {
                *position -= std::min<std::uint64_t>(*position - index, count);
            }
        }
    }

    /// Removes what `keep` rejects between `start` and `end`, in one pass over the text however
    /// much that is: pasted text can be long. Returns the new end.
    template <class Predicate>
    std::size_t keepOnly(Predicate keep, std::size_t start, std::size_t end) noexcept {
        std::size_t kept = start;
        std::uint64_t removedBeforeSelectionStart = 0;
        std::uint64_t removedBeforeSelectionEnd = 0;
        for (std::size_t index = start; index < end; ++index) {
            if (keep(text_[index])) {
                text_[kept++] = text_[index];
                continue;
            }
            removedBeforeSelectionStart += index < selectionStart_ ? 1U : 0U;
            removedBeforeSelectionEnd += index < selectionEnd_ ? 1U : 0U;
        }
        text_.erase(kept, end - kept);
        selectionStart_ -= removedBeforeSelectionStart;
        selectionEnd_ -= removedBeforeSelectionEnd;
        return kept;
    }

    void advanceSelection() noexcept {
        ++selectionStart_;
        ++selectionEnd_;
    }

    /// Brings an end of the selection that stands beyond `index` back to it.
    void limitSelection(std::size_t index) noexcept {
        selectionStart_ = std::min<std::uint64_t>(selectionStart_, index);
        selectionEnd_ = std::min<std::uint64_t>(selectionEnd_, index);
    }

private:
    std::wstring& text_;
    std::uint64_t& selectionStart_;
    std::uint64_t& selectionEnd_;
};

} // namespace corvane::workbench::bindings::functional::internal
