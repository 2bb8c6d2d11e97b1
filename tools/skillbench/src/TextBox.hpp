#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace corvane::skillbench {

/// A text box with a cursor and a selection, as far as keys go. Positions count UTF-16 code units.
class TextBox {
public:
    TextBox() = default;
    /// Without a selection. Precondition: the cursor is within the text.
    TextBox(std::wstring text, std::size_t cursor);

    [[nodiscard]] const std::wstring& text() const noexcept { return text_; }
    /// Where the selection was begun; the cursor itself when nothing is selected.
    [[nodiscard]] std::uint64_t anchor() const noexcept { return anchor_; }
    [[nodiscard]] std::uint64_t cursor() const noexcept { return cursor_; }

    enum class Selection {
        Drop,  ///< what was selected no longer is
        Extend ///< as with the shift key
    };

    // Without extending, a selection is left towards the side of the key.
    void moveLeft(Selection selection);
    void moveRight(Selection selection);
    void moveHome(Selection selection);
    void moveEnd(Selection selection);
    void selectAll();

    /// Replaces the selection by the text, or inserts it at the cursor.
    void enter(std::wstring_view entered);
    /// Deletes the selection, or the character in front of the cursor. Returns whether the text
    /// changed.
    bool deleteBackward();
    /// The same with the character behind the cursor.
    bool deleteForward();

    /// Lets an adjuster rewrite the text and move the two ends of the selection.
    template <class Adjuster>
    void adjust(const Adjuster& adjuster) {
        adjuster(text_, anchor_, cursor_);
    }

    /// The text with "|" at the cursor or "[" and "]" around the selection (UTF-8).
    [[nodiscard]] std::string picture() const;

private:
    [[nodiscard]] bool hasSelection() const noexcept { return anchor_ != cursor_; }
    [[nodiscard]] std::size_t begin() const noexcept;
    [[nodiscard]] std::size_t end() const noexcept;
    void moveTo(std::size_t position, Selection selection) noexcept;

    std::wstring text_;
    std::uint64_t anchor_ = 0;
    std::uint64_t cursor_ = 0;
};

} // namespace corvane::skillbench
