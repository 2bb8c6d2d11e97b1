#pragma once

namespace corvane::utils::string::detail {

/// Writes characters as UTF-16 code units. Wide text holds UTF-16 also where wchar_t is wider.
class Utf16Encoder {
public:
    /// Calls sink(wchar_t) once, or twice for a surrogate pair. A lone surrogate and a value above
    /// U+10FFFF, which are no characters, become U+FFFD.
    template <class Sink>
    constexpr void encode(char32_t character, Sink&& sink) const {
        if (character < 0x10000) {
            const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
            sink(static_cast<wchar_t>(isSurrogate ? 0xFFFD : character));
        } else if (character <= 0x10FFFF) {
            const char32_t offset = character - 0x10000;
            sink(static_cast<wchar_t>(0xD800 + (offset >> 10U)));
            sink(static_cast<wchar_t>(0xDC00 + (offset & 0x3FFU)));
        } else {
            sink(static_cast<wchar_t>(0xFFFD));
        }
    }
};

} // namespace corvane::utils::string::detail
