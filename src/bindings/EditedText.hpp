// The text of a box together with the two ends of its selection, edited so that both ends stay on
// the characters they stood on. Borrows all three; lives for one call of a text adjuster.
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

class EditedText {
public:
    EditedText(std::wstring& text, std::uint64_t& selectionStart,
               std::uint64_t& selectionEnd) noexcept
        : m_text(text), m_selectionStart(selectionStart), m_selectionEnd(selectionEnd) {}

    [[nodiscard]] std::size_t size() const noexcept { return m_text.size(); }
    [[nodiscard]] std::wstring_view view() const noexcept { return m_text; }

    /// The character at `index`, or NUL past the end.
    [[nodiscard]] wchar_t at(std::size_t index) const noexcept {
        return index < m_text.size() ? m_text[index] : L'\0';
    }

    [[nodiscard]] bool is(std::size_t index, wchar_t character) const noexcept {
        return index < m_text.size() && m_text[index] == character;
    }

    [[nodiscard]] bool isOneOf(std::size_t index, std::wstring_view set) const noexcept {
        return index < m_text.size() && internal::isOneOf(m_text[index], set);
    }

    /// Where the next character of `set` stands at or after `from`, or the text's end.
    [[nodiscard]] std::size_t find(std::wstring_view set, std::size_t from) const noexcept {
        return std::min(m_text.find_first_of(set, from), m_text.size());
    }

    /// Whether there is a plain cursor instead of a selection. Edits can bring the ends together.
    [[nodiscard]] bool hasCursor() const noexcept { return m_selectionStart == m_selectionEnd; }
    [[nodiscard]] std::uint64_t cursor() const noexcept { return m_selectionEnd; }
    [[nodiscard]] bool hasCursorAt(std::size_t index) const noexcept {
        return hasCursor() && cursor() == index;
    }
    [[nodiscard]] bool hasCursorAfter(std::size_t index) const noexcept {
        return hasCursor() && cursor() > index;
    }

    void replace(std::size_t index, wchar_t character) noexcept { m_text[index] = character; }
    void swapWithNext(std::size_t index) noexcept { std::swap(m_text[index], m_text[index + 1]); }

    void insert(std::size_t index, wchar_t character, std::size_t count = 1) {
        m_text.insert(index, count, character);
        for (std::uint64_t* position : {&m_selectionStart, &m_selectionEnd}) {
            if (*position > index) {
                *position += count;
            }
        }
    }

    void remove(std::size_t index, std::size_t count = 1) noexcept {
        m_text.erase(index, count);
        for (std::uint64_t* position : {&m_selectionStart, &m_selectionEnd}) {
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
            if (keep(m_text[index])) {
                m_text[kept++] = m_text[index];
                continue;
            }
            removedBeforeSelectionStart += index < m_selectionStart ? 1U : 0U;
            removedBeforeSelectionEnd += index < m_selectionEnd ? 1U : 0U;
        }
        m_text.erase(kept, end - kept);
        m_selectionStart -= removedBeforeSelectionStart;
        m_selectionEnd -= removedBeforeSelectionEnd;
        return kept;
    }

    void advanceSelection() noexcept {
        ++m_selectionStart;
        ++m_selectionEnd;
    }

    /// Brings an end of the selection that stands beyond `index` back to it.
    void limitSelection(std::size_t index) noexcept {
        m_selectionStart = std::min<std::uint64_t>(m_selectionStart, index);
        m_selectionEnd = std::min<std::uint64_t>(m_selectionEnd, index);
    }

private:
    std::wstring& m_text;
    std::uint64_t& m_selectionStart;
    std::uint64_t& m_selectionEnd;
};

} // namespace corvane::workbench::bindings::functional::internal
