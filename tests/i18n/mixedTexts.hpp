#pragma once

// Texts that are hard to sort.

#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::tests {

/// That many short texts, the same at every call, put together from pieces at which languages and
/// comparisons differ: numbers, letters that are two or belong to the one before, marks in several
/// orders, signs that count or do not, scripts, halves of surrogate pairs. One in ten holds digits
/// outside ASCII.
inline std::vector<std::wstring> mixedTexts(std::size_t count) {
    using namespace std::string_view_literals;
    static constexpr std::wstring_view kPieces[] = {
        L"a"sv, L"A"sv, L"b"sv, L"B"sv, L"z"sv, L"i"sv, L"I"sv, L"\u0130"sv, L"\u0131"sv, L"0"sv,
        L"00"sv, L"1"sv, L"9"sv, L"10"sv, L"19"sv, L"01"sv, L"010"sv, L"100"sv, L"2"sv,
        L"1234567890123456789012"sv,
        // Accents, composed, decomposed, and in two orders.
        L"\u00E4"sv, L"a\u0308"sv, L"\u00C4"sv, L"\u00E5"sv, L"a\u030A"sv, L"\u212B"sv, L"\u00E9"sv,
        L"e\u0301"sv, L"\u1E69"sv, L"s\u0323\u0307"sv, L"s\u0307\u0323"sv, L"\u00F1"sv, L"n"sv,
        L"\u00F8"sv, L"\u00E6"sv, L"\u00DF"sv, L"ss"sv, L"SS"sv, L"\u00F6"sv, L"\u00FC"sv,
        L"\u0301"sv,
        // Two or three letters that are one in some languages.
        L"c"sv, L"h"sv, L"ch"sv, L"Ch"sv, L"ll"sv, L"dz"sv, L"dzs"sv, L"lj"sv, L"aa"sv, L"AA"sv,
        // Signs.
        L"-"sv, L"'"sv, L" "sv, L"_"sv, L"."sv, L","sv, L"("sv, L"\u00AD"sv, L"\u200B"sv,
        L"\u200D"sv, L"\uFFFE"sv, L"\0"sv,
        // Numbers that are no decimal digits.
        L"\u00B2"sv, L"\u00BD"sv, L"\u2160"sv, L"\u2460"sv, L"\u3007"sv, L"\u4E00"sv,
        // Other scripts.
        L"\u0434"sv, L"\u0414"sv, L"\u0451"sv, L"\u03B1"sv, L"\u0391"sv, L"\u03C2"sv, L"\u0627"sv,
        L"\u0628"sv, L"\u0915"sv, L"\u093C"sv, L"\u0E40"sv, L"\u0E01"sv, L"\u304B"sv, L"\u30AB"sv,
        L"\u30FC"sv, L"\u30AB\u30FC"sv, L"\u309D"sv, L"l"sv, L"l\u00B7"sv, L"\u00B7"sv,
        L"\u0438\u0306"sv, L"\u0439"sv, L"y"sv, L"w"sv, L"rz"sv, L"\u11A8"sv, L"\u3042"sv,
        L"\u6F22"sv, L"\u4E2D"sv, L"\uAC00"sv, L"\u1100\u1161"sv, L"\uFF41"sv, L"\uFF21"sv,
        L"\xD83D\xDE00"sv, L"\xD835\xDC00"sv, L"\xD83D"sv, L"\xDE00"sv};
    static constexpr std::wstring_view kForeignDigits[] = {L"\uFF10"sv,
                                                           L"\uFF11"sv,
                                                           L"\uFF11\uFF19"sv,
                                                           L"\uFF12\uFF10"sv,
                                                           L"\uFF11\uFF10\uFF10"sv,
                                                           L"\u0661"sv,
                                                           L"\u0669"sv,
                                                           L"\u06F2"sv,
                                                           L"\u0967"sv,
                                                           L"\u0966"sv,
                                                           L"\xD835\xDFCE"sv,
                                                           L"\xD835\xDFD9"sv,
                                                           L"1\uFF19"sv,
                                                           L"\uFF12"
                                                           L"0"sv};

    std::mt19937 random(42);
    const auto oneOf = [&](const auto& pieces) { return pieces[random() % std::size(pieces)]; };
    std::vector<std::wstring> texts;
    while (texts.size() < count) {
        std::wstring text;
        for (auto pieces = random() % 5; pieces != 0; --pieces) {
            text += oneOf(kPieces);
        }
        if (texts.size() % 10 == 0) {
            text += oneOf(kForeignDigits);
            text += oneOf(kPieces);
        }
        texts.push_back(text);
    }
    return texts;
}

} // namespace corvane::tests
