#include "TextBox.hpp"

#include "text.hpp"

#include <algorithm>
#include <utility>

namespace corvane::skillbench {

TextBox::TextBox(std::wstring text, std::size_t cursor)
    : text_(std::move(text)), anchor_(cursor), cursor_(cursor) {}

void TextBox::moveLeft(Selection selection) {
    if (selection == Selection::Drop && hasSelection()) {
        moveTo(begin(), selection);
    } else if (cursor_ != 0) {
        moveTo(static_cast<std::size_t>(cursor_) - 1, selection);
    }
}

void TextBox::moveRight(Selection selection) {
    if (selection == Selection::Drop && hasSelection()) {
        moveTo(end(), selection);
    } else if (cursor_ != text_.size()) {
        moveTo(static_cast<std::size_t>(cursor_) + 1, selection);
    }
}

void TextBox::moveHome(Selection selection) {
    moveTo(0, selection);
}

void TextBox::moveEnd(Selection selection) {
    moveTo(text_.size(), selection);
}

void TextBox::selectAll() {
    anchor_ = 0;
    cursor_ = text_.size();
}

void TextBox::enter(std::wstring_view entered) {
    const std::size_t start = begin();
    text_.replace(start, end() - start, entered);
    moveTo(start + entered.size(), Selection::Drop);
}

bool TextBox::deleteBackward() {
    if (!hasSelection()) {
        moveLeft(Selection::Extend);
    }
    const bool changes = hasSelection();
    enter({});
    return changes;
}

bool TextBox::deleteForward() {
    if (!hasSelection()) {
        moveRight(Selection::Extend);
    }
    const bool changes = hasSelection();
    enter({});
    return changes;
}

std::string TextBox::picture() const {
    std::wstring result = text_;
    if (hasSelection()) {
        result.insert(end(), 1, L']');
        result.insert(begin(), 1, L'[');
    } else {
        result.insert(static_cast<std::size_t>(cursor_), 1, L'|');
    }
    return onOneLine(result);
}

std::size_t TextBox::begin() const noexcept {
    return static_cast<std::size_t>(std::min(anchor_, cursor_));
}

std::size_t TextBox::end() const noexcept {
    return static_cast<std::size_t>(std::max(anchor_, cursor_));
}

void TextBox::moveTo(std::size_t position, Selection selection) noexcept {
    cursor_ = position;
    if (selection == Selection::Drop) {
        anchor_ = position;
    }
}

} // namespace corvane::skillbench
