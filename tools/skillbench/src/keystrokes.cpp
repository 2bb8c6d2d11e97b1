#include "keystrokes.hpp"

#include "Failure.hpp"
#include "TextBox.hpp"
#include "text.hpp"
#include <corvane/utils/string/transcode.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace corvane::skillbench {

namespace {

using Selection = TextBox::Selection;

struct NamedKey {
    std::string_view name;
    bool (*press)(TextBox&);
};

template <void (TextBox::*move)(Selection), Selection selection>
bool moves(TextBox& box) {
    (box.*move)(selection);
    return false;
}

constexpr std::array kNamedKeys{
    NamedKey{"<left>", moves<&TextBox::moveLeft, Selection::Drop>},
    NamedKey{"<right>", moves<&TextBox::moveRight, Selection::Drop>},
    NamedKey{"<home>", moves<&TextBox::moveHome, Selection::Drop>},
    NamedKey{"<end>", moves<&TextBox::moveEnd, Selection::Drop>},
    NamedKey{"<select-left>", moves<&TextBox::moveLeft, Selection::Extend>},
    NamedKey{"<select-right>", moves<&TextBox::moveRight, Selection::Extend>},
    NamedKey{"<select-home>", moves<&TextBox::moveHome, Selection::Extend>},
    NamedKey{"<select-end>", moves<&TextBox::moveEnd, Selection::Extend>},
    NamedKey{"<select-all>",
             [](TextBox& box) {
                 box.selectAll();
                 return false;
             }},
    NamedKey{"<backspace>", [](TextBox& box) { return box.deleteBackward(); }},
    NamedKey{"<delete>", [](TextBox& box) { return box.deleteForward(); }},
    NamedKey{"<less>",
             [](TextBox& box) {
                 box.enter(L"<");
                 return true;
             }},
};

constexpr std::string_view kPaste = "<paste:";

std::size_t characterSize(std::string_view text) {
    std::size_t size = 1;
    while (size < text.size() && (static_cast<unsigned char>(text[size]) & 0xC0U) == 0x80U) {
        ++size;
    }
    return size;
}

Keystroke entering(std::string_view name, std::string_view entered) {
    return {std::string(name), [text = utils::string::toWide(entered)](TextBox& box) {
                box.enter(text);
                return true;
            }};
}

Keystroke namedKeystroke(std::string_view name) {
    if (name.starts_with(kPaste)) {
        return entering(name, name.substr(kPaste.size(), name.size() - kPaste.size() - 1));
    }
    const auto found =
        std::find_if(kNamedKeys.begin(), kNamedKeys.end(),
                     [&](const NamedKey& candidate) { return candidate.name == name; });
    if (found == kNamedKeys.end()) {
        throw UsageFailure("there is no key " + inQuotes(name) + "; the names are " + keyNames());
    }
    return {std::string(name), found->press};
}

} // namespace

std::vector<Keystroke> parseKeystrokes(std::string_view text) {
    std::vector<Keystroke> result;
    while (!text.empty()) {
        std::size_t size = characterSize(text);
        if (text.front() == '<') {
            const std::size_t end = text.find('>');
            if (end == std::string_view::npos) {
                throw UsageFailure("“<” without “>” in " + inQuotes(text) +
                                   "; the character itself is <less>");
            }
            size = end + 1;
            result.push_back(namedKeystroke(text.substr(0, size)));
        } else {
            result.push_back(entering(text.substr(0, size), text.substr(0, size)));
        }
        text.remove_prefix(size);
    }
    return result;
}

std::string keyNames() {
    std::string result;
    for (const NamedKey& key : kNamedKeys) {
        result += key.name;
        result += ' ';
    }
    return result + "<paste:TEXT>";
}

} // namespace corvane::skillbench
