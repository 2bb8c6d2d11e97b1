#include "TextBox.hpp"

#include "text.hpp"

#include <algorithm>
#include <utility>

namespace corvane::skillbench {

TextBox::TextBox(std::wstring text, std::size_t cursor)
    : _text(std::move(text)), _anchor(cursor), _cursor(cursor) {}

void TextBox::moveLeft(Selection selection) {
    if (selection == Selection::Drop && hasSelection()) {
        moveTo(begin(), selection);
    } else if (_cursor != 0) {
        moveTo(static_cast<std::size_t>(_cursor) - 1, selection);
    }
}

void TextBox::moveRight(Selection selection) {
    if (selection == Selection::Drop && hasSelection()) {
        moveTo(end(), selection);
    } else if (_cursor != _text.size()) {
        moveTo(static_cast<std::size_t>(_cursor) + 1, selection);
    }
}

void TextBox::moveHome(Selection selection) {
    moveTo(0, selection);
}

void TextBox::moveEnd(Selection selection) {
    moveTo(_text.size(), selection);
}

void TextBox::selectAll() {
    _anchor = 0;
    _cursor = _text.size();
}

void TextBox::enter(std::wstring_view entered) {
    const std::size_t start = begin();
    _text.replace(start, end() - start, entered);
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
    std::wstring result = _text;
    if (hasSelection()) {
        result.insert(end(), 1, L']');
        result.insert(begin(), 1, L'[');
    } else {
        result.insert(static_cast<std::size_t>(_cursor), 1, L'|');
    }
    return onOneLine(result);
}

std::size_t TextBox::begin() const noexcept {
    return static_cast<std::size_t>(std::min(_anchor, _cursor));
}

std::size_t TextBox::end() const noexcept {
    return static_cast<std::size_t>(std::max(_anchor, _cursor));
}

void TextBox::moveTo(std::size_t position, Selection selection) noexcept {
    _cursor = position;
    if (selection == Selection::Drop) {
        _anchor = position;
    }
}

} // namespace corvane::skillbench
