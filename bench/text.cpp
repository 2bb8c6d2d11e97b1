// Times the conversion of whole texts between UTF-8 and UTF-16 beside ICU's.
//
//     bench-text [--check] [--json]
//
// Shows nanoseconds for ourselves, and how many times as long as ICU we take: ICU writes into a
// string that it is given (the result has to be allocated, as ours has), and into memory that is
// there already. --check exits with 1 when a figure exceeds its bar.
#include "Figures.hpp"
#include "SideBySide.hpp"
#include <corvane/utils/string/transcode.hpp>

#include <unicode/ustring.h>

#include <cstddef>
#include <cstdint>
#include <exception>
#include <format>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace corvane::bench;
using corvane::utils::string::toUtf8;
using corvane::utils::string::toWide;

std::int32_t fromUtf8(std::string_view utf8, char16_t* to, std::size_t room) {
    UErrorCode error = U_ZERO_ERROR;
    std::int32_t length = 0;
    u_strFromUTF8WithSub(to, static_cast<std::int32_t>(room), &length, utf8.data(),
                         static_cast<std::int32_t>(utf8.size()), 0xFFFD, nullptr, &error);
    if (U_FAILURE(error)) {
        throw std::runtime_error("ICU cannot convert the text");
    }
    return length;
}

std::int32_t intoUtf8(std::u16string_view utf16, char* to, std::size_t room) {
    UErrorCode error = U_ZERO_ERROR;
    std::int32_t length = 0;
    u_strToUTF8WithSub(to, static_cast<std::int32_t>(room), &length, utf16.data(),
                       static_cast<std::int32_t>(utf16.size()), 0xFFFD, nullptr, &error);
    if (U_FAILURE(error)) {
        throw std::runtime_error("ICU cannot convert the text");
    }
    return length;
}

struct Text {
    std::string name;
    std::string utf8;
    /// How many times as long as ICU, with a string for its result, we may take.
    std::optional<double> bar;
};

std::string repeated(std::string_view text, std::size_t bytes) {
    std::string repeated;
    while (repeated.size() + text.size() <= bytes) {
        repeated += text;
    }
    return repeated;
}

std::vector<Text> texts() {
    constexpr std::string_view japanese =
        "\xE7\xAC\xAC\xE4\xB8\x80\xE3\x83\x9D\xE3\x83\xB3\xE3\x83\x97\xE5\xA0\xB4\xE3\x81\xAE\xE6"
        "\xB0\xB4\xE4\xBD\x8D\xE3\x80\x81\xE9\x80\x9A\xE5\xB8\xB8\xE3\x80\x82"; // 15 characters
    constexpr std::string_view greek =
        "\xCE\xB1\xCE\xBD\xCF\x84\xCE\xBB\xCE\xB9\xCE\xBF\xCF\x83\xCF\x84\xCE\xAC\xCF\x83\xCE\xB9"
        "\xCE\xBF ";
    constexpr std::string_view german = "F\xC3\xBCllstandsmessger\xC3\xA4t der Pumpstation ";
    constexpr std::string_view emoji = "\xF0\x9F\x92\xA7\xF0\x9F\x94\xA7\xF0\x9F\x9A\xB0";
    constexpr std::string_view english = "level sensor of the pumping station ";
    const double asFastAsFourFifths = 1.0 / 0.8;
    return {
        {"short Japanese", std::string(japanese.substr(0, 9)), asFastAsFourFifths},
        {"a line of Japanese", std::string(japanese), asFastAsFourFifths},
        {"long Japanese", repeated(japanese, 300'000), asFastAsFourFifths},
        {"short Greek", std::string(greek), std::nullopt},
        {"long Greek", repeated(greek, 300'000), std::nullopt},
        {"short German", std::string(german), std::nullopt},
        {"long German", repeated(german, 300'000), std::nullopt},
        {"long emoji", repeated(emoji, 300'000), std::nullopt},
        {"short English", std::string(english), std::nullopt},
        {"long English", repeated(english, 300'000), std::nullopt},
    };
}

void compareToUtf16(Figures& figures, const Text& text) {
    const std::string& utf8 = text.utf8;
    std::vector<char16_t> memory(utf8.size());
    SideBySide sideBySide;
    sideBySide.add("corvane", [&](std::size_t times) {
        for (std::size_t time = 0; time != times; ++time) {
            static_cast<void>(toWide(utf8));
        }
    });
    sideBySide.add("ICU", [&](std::size_t times) {
        for (std::size_t time = 0; time != times; ++time) {
            std::u16string utf16(utf8.size(), u'\0');
            utf16.resize(static_cast<std::size_t>(fromUtf8(utf8, utf16.data(), utf16.size())));
        }
    });
    sideBySide.add("ICU into memory", [&](std::size_t times) {
        for (std::size_t time = 0; time != times; ++time) {
            fromUtf8(utf8, memory.data(), memory.size());
        }
    });
    sideBySide.run();
    figures.add(std::format("{} to UTF-16, ns", text.name), sideBySide.nanoseconds("corvane"));
    figures.add("    of ICU", sideBySide.ratio("corvane", "ICU"), text.bar);
    figures.add("    of ICU into memory", sideBySide.ratio("corvane", "ICU into memory"));
}

void compareToUtf8(Figures& figures, const Text& text) {
    const std::wstring wide = toWide(text.utf8);
    const std::u16string utf16(wide.begin(), wide.end());
    std::vector<char> memory(text.utf8.size());
    SideBySide sideBySide;
    sideBySide.add("corvane", [&](std::size_t times) {
        for (std::size_t time = 0; time != times; ++time) {
            static_cast<void>(toUtf8(wide));
        }
    });
    sideBySide.add("ICU", [&](std::size_t times) {
        for (std::size_t time = 0; time != times; ++time) {
            std::string utf8(3 * utf16.size(), '\0');
            utf8.resize(static_cast<std::size_t>(intoUtf8(utf16, utf8.data(), utf8.size())));
        }
    });
    sideBySide.add("ICU into memory", [&](std::size_t times) {
        for (std::size_t time = 0; time != times; ++time) {
            intoUtf8(utf16, memory.data(), memory.size());
        }
    });
    sideBySide.run();
    figures.add(std::format("{} to UTF-8, ns", text.name), sideBySide.nanoseconds("corvane"));
    figures.add("    of ICU", sideBySide.ratio("corvane", "ICU"));
    figures.add("    of ICU into memory", sideBySide.ratio("corvane", "ICU into memory"));
}

} // namespace

int main(int argc, char** argv) {
    try {
        Figures figures(argc, argv);
        for (const Text& text : texts()) {
            compareToUtf16(figures, text);
        }
        for (const Text& text : texts()) {
            compareToUtf8(figures, text);
        }
        return figures.finish();
    } catch (const std::exception& error) {
        std::cerr << "bench-text: " << error.what() << '\n';
        return 2;
    }
}
