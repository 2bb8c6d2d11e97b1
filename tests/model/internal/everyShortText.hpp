#pragma once

// Visits every text of up to `length` characters that mean something in keys, and a letter.

#include <cstddef>
#include <string>

namespace corvane::tests {

template <class Visit>
void forEveryShortText(std::size_t length, const Visit& visit, std::string& text) {
    visit(text);
    if (text.size() == length) {
        return;
    }
    for (const char character : {'a', '.', '[', ']'}) {
        text += character;
        forEveryShortText(length, visit, text);
        text.pop_back();
    }
}

template <class Visit>
void forEveryShortText(std::size_t length, const Visit& visit) {
    std::string text;
    forEveryShortText(length, visit, text);
}

} // namespace corvane::tests
