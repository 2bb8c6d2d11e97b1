#include <corvane/utils/string/transcode.hpp>

#include <cstdint>
#include <cstring>

#include <corvane/utils/string/detail/Utf16Encoder.hpp>

#include "Utf8Sequence.hpp"

namespace corvane::utils::string {

namespace {

constexpr std::size_t kBlock = 8;

[[nodiscard]] bool isAsciiBlock(const char* block) noexcept {
    std::uint64_t word = 0;
    std::memcpy(&word, block, kBlock);
    return (word & 0x8080808080808080U) == 0;
}

[[nodiscard]] char* appendUtf8(char* to, char32_t character) noexcept {
    const auto put = [&to](char32_t byte) { *to++ = static_cast<char>(byte); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0U | (character >> 6U));
        put(0x80U | (character & 0x3FU));
    } else if (character < 0x10000) {
        put(0xE0U | (character >> 12U));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    } else {
        put(0xF0U | (character >> 18U));
        put(0x80U | ((character >> 12U) & 0x3FU));
        put(0x80U | ((character >> 6U) & 0x3FU));
        put(0x80U | (character & 0x3FU));
    }
    return to;
}

[[nodiscard]] constexpr bool isLeadingSurrogate(char32_t unit) noexcept {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

[[nodiscard]] constexpr bool isTrailingSurrogate(char32_t unit) noexcept {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

} // namespace

std::wstring toWide(std::string_view utf8) {
    // No sequence gives more code units than it has bytes.
    std::wstring wide(utf8.size(), L'\0');
    wchar_t* to = wide.data();
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
    wide.resize(static_cast<std::size_t>(to - wide.data()));
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
        } else if (isLeadingSurrogate(unit) && from != end &&
                   isTrailingSurrogate(static_cast<char32_t>(*from))) {
            to = appendUtf8(to, 0x10000U + ((unit - 0xD800U) << 10U) +
                                    (static_cast<char32_t>(*from) - 0xDC00U));
            ++from;
        } else if (isLeadingSurrogate(unit) || isTrailingSurrogate(unit) || unit > 0xFFFF) {
            to = appendUtf8(to, U'\uFFFD');
        } else {
            to = appendUtf8(to, unit);
        }
    }
    utf8.resize(static_cast<std::size_t>(to - utf8.data()));
    return utf8;
}

} // namespace corvane::utils::string
