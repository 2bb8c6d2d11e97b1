#pragma once

#include <cstdint>

namespace corvane::utils::string::detail {

/// Decodes UTF-8 that arrives byte by byte. Malformed input gives U+FFFD once per maximal subpart
/// of an ill-formed sequence, as web browsers do. One decoder serves one text; not thread-safe.
class Utf8Decoder {
public:
    /// Takes the next byte. Calls sink(char32_t) for each character that is then complete: not at
    /// all, once, or twice (a replacement character and the character that ended the bad one).
    template <class Sink>
    constexpr void feed(char byte, Sink&& sink) {
        const auto value = static_cast<std::uint8_t>(byte);
        if (missing_ != 0) {
            if (value >= lower_ && value <= upper_) {
                character_ = (character_ << 6U) | (value & 0x3FU);
                lower_ = 0x80;
                upper_ = 0xBF;
                if (--missing_ == 0) {
                    sink(character_);
                }
                return;
            }
            // The byte does not belong to the sequence; it starts anew below.
            missing_ = 0;
            sink(kReplacement);
        }
        if (value < 0x80) {
            sink(static_cast<char32_t>(value));
        } else {
            begin(value, sink);
        }
    }

    /// Ends the text: a sequence that has not ended becomes one replacement character. The
    /// decoder is then as new.
    template <class Sink>
    constexpr void finish(Sink&& sink) {
        if (missing_ != 0) {
            missing_ = 0;
            sink(kReplacement);
        }
    }

private:
    static constexpr char32_t kReplacement = U'\uFFFD';

    template <class Sink>
    constexpr void begin(std::uint8_t value, Sink&& sink) {
        lower_ = 0x80;
        upper_ = 0xBF;
        if (value >= 0xC2 && value <= 0xDF) {
            missing_ = 1;
            character_ = value & 0x1FU;
        } else if (value >= 0xE0 && value <= 0xEF) {
            missing_ = 2;
            character_ = value & 0x0FU;
            if (value == 0xE0) {
                lower_ = 0xA0; // no overlong form
            } else if (value == 0xED) {
                upper_ = 0x9F; // no surrogate
            }
        } else if (value >= 0xF0 && value <= 0xF4) {
            missing_ = 3;
            character_ = value & 0x07U;
            if (value == 0xF0) {
                lower_ = 0x90; // no overlong form
            } else if (value == 0xF4) {
                upper_ = 0x8F; // nothing above U+10FFFF
            }
        } else {
            sink(kReplacement);
        }
    }

    char32_t character_ = 0;
    std::uint8_t missing_ = 0;
    std::uint8_t lower_ = 0x80;
    std::uint8_t upper_ = 0xBF;
};

} // namespace corvane::utils::string::detail
