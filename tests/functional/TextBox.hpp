#pragma once

#include <cstdint>
#include <ostream>
#include <random>
#include <string>
#include <string_view>
#include <utility>

namespace corvane::workbench::bindings::functional::test {

/// A text box for the tests: text and selection in one line, "|" for the cursor and "[" "]" for the
/// two ends of a selection, whichever way round.
struct TextBox {
    std::wstring text;
    std::uint64_t selectionStart = 0;
    std::uint64_t selectionEnd = 0;

    static TextBox parse(std::wstring_view notation) {
        TextBox box;
        for (const wchar_t character : notation) {
            switch (character) {
            case L'|':
                box.selectionStart = box.selectionEnd = box.text.size();
                break;
            case L'[':
                box.selectionStart = box.text.size();
                break;
            case L']':
                box.selectionEnd = box.text.size();
                break;
            default:
                box.text += character;
            }
        }
        return box;
    }

    [[nodiscard]] bool isConsistent() const {
        return selectionStart <= text.size() && selectionEnd <= text.size();
    }

    /// Replaces the selection, as a key or a paste does.
    void enter(std::wstring_view characters) {
        if (selectionStart > selectionEnd) {
            std::swap(selectionStart, selectionEnd);
        }
        const auto start = static_cast<std::size_t>(selectionStart);
        text.replace(start, static_cast<std::size_t>(selectionEnd) - start, characters);
        selectionStart = selectionEnd = start + characters.size();
    }

    void backspace() {
        if (selectionStart == selectionEnd && selectionStart > 0) {
            --selectionStart;
        }
        enter({});
    }

    template <class Adjuster>
    void adjust(const Adjuster& adjuster) {
        adjuster(text, selectionStart, selectionEnd);
    }

    friend bool operator==(const TextBox&, const TextBox&) = default;

    friend std::ostream& operator<<(std::ostream& out, const TextBox& box) {
        for (const wchar_t character : box.text) {
            if (character >= L' ' && character < L'\x7f') {
                out << static_cast<char>(character);
            } else {
                out << "\\x" << std::hex << static_cast<std::uint32_t>(character) << std::dec;
            }
        }
        return out << " (" << box.selectionStart << ", " << box.selectionEnd << ")";
    }
};

/// What the adjuster makes of a box written in the notation above.
template <class Adjuster>
TextBox adjusted(const Adjuster& adjuster, std::wstring_view notation) {
    TextBox box = TextBox::parse(notation);
    box.adjust(adjuster);
    return box;
}

/// Types the text key by key into an empty box, adjusting after every key.
template <class Adjuster>
TextBox typed(const Adjuster& adjuster, std::wstring_view keys) {
    TextBox box;
    for (const wchar_t key : keys) {
        box.enter({&key, 1});
        box.adjust(adjuster);
    }
    return box;
}

/// One random edit out of inserting, deleting, replacing, pasting and moving the selection.
template <class Random>
void editAtRandom(TextBox& box, Random& random, std::wstring_view alphabet) {
    const auto upTo = [&](std::size_t limit) {
        return static_cast<std::size_t>(random() % (limit + 1));
    };
    box.selectionStart = box.selectionEnd = upTo(box.text.size());
    const auto character = [&] { return alphabet[upTo(alphabet.size() - 1)]; };
    switch (random() % 6) {
    case 0:
    case 1:
        box.enter(std::wstring(1, character()));
        break;
    case 2:
        box.backspace();
        break;
    case 3:
        box.selectionEnd = upTo(box.text.size());
        box.enter(std::wstring(1, character()));
        break;
    case 4: {
        std::wstring pasted(upTo(40), L' ');
        for (wchar_t& one : pasted) {
            one = character();
        }
        box.selectionEnd = upTo(box.text.size());
        box.enter(pasted);
        break;
    }
    default:
        box.selectionEnd = upTo(box.text.size());
        break;
    }
}

} // namespace corvane::workbench::bindings::functional::test
