#include <corvane/utils/string/transcode.hpp>

#include "Utf8Sequence.hpp"
#include "surrogates.hpp"
#include <corvane/utils/string/detail/Utf16Encoder.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace corvane::utils::string {

namespace {

constexpr std::size_t kBlock = 8;

[[nodiscard]] bool isAsciiBlock(const char* block) noexcept {
    std::uint64_t word = 0;
    std::memcpy(&word, block, kBlock);
    return (word & 0x8080808080808080U) == 0;
}

/// Writes no more code units than the text has bytes; returns the end.
wchar_t* writeWide(std::string_view utf8, wchar_t* to) noexcept {
    const char* from = utf8.data();
    const char* const end = from + utf8.size();
    const detail::Utf16Encoder encoder;
    while (from != end) {
        while (static_cast<std::size_t>(end - from) >= kBlock && isAsciiBlock(from)) {
            for (std::size_t index = 0; index != kBlock; ++index) {
                to[index] = static_cast<wchar_t>(from[index]);
            }
            from += kBlock;
            to += kBlock;
        }
        if (from == end) {
            break;
        }
        // Text outside ASCII comes in runs.
        do {
            const Utf8Sequence sequence = readUtf8Sequence(from, end);
            encoder.encode(sequence.character, [&to](wchar_t unit) { *to++ = unit; });
            from += sequence.length;
        } while (from != end && static_cast<unsigned char>(*from) >= 0x80);
    }
    return to;
}

} // namespace

std::wstring toWide(std::string_view utf8) {
    std::array<wchar_t, 256> shortText;
    if (utf8.size() <= shortText.size()) {
        return {shortText.data(), writeWide(utf8, shortText.data())};
    }
    std::wstring wide(utf8.size(), L'\0');
    wide.resize(static_cast<std::size_t>(writeWide(utf8, wide.data()) - wide.data()));
    return wide;
}

std::string toUtf8(std::wstring_view utf16) {
    // A code unit gives at most three bytes, a pair of them four.
    std::string utf8(utf16.size() * 3, '\0');
    char* to = utf8.data();
    const wchar_t* from = utf16.data();
    const wchar_t* const end = from + utf16.size();
    while (from != end) {
        // Where wchar_t has 32 bits, and a sign, it may hold what is no code unit.
        const auto unit = static_cast<char32_t>(*from++);
        if (unit < 0x80) {
            *to++ = static_cast<char>(unit);
        } else if (unit < 0xD800 || (unit > 0xDFFF && unit <= 0xFFFF)) {
            to = writeUtf8Sequence(to, unit);
        } else if (isLeadingSurrogate(unit) && from != end &&
                   isTrailingSurrogate(static_cast<char32_t>(*from))) {
            to = writeUtf8Sequence(to, combineSurrogates(unit, static_cast<char32_t>(*from)));
            ++from;
        } else {
            to = writeUtf8Sequence(to, U'\uFFFD');
        }
    }
    utf8.resize(static_cast<std::size_t>(to - utf8.data()));
    return utf8;
}

} // namespace corvane::utils::string
