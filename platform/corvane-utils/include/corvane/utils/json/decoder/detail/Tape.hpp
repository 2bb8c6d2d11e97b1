// The tokens of a JSON text in the order of the text, as the pull classes read them. Made once by
// a decoder::Document and not changed afterwards.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <corvane/utils/export.hpp>
#include <corvane/utils/json/decoder/Location.hpp>

namespace corvane::utils::json::decoder::detail {

enum class TokenKind : std::uint8_t {
    Object,
    Array,
    String,        ///< the text itself holds the string's bytes
    EscapedString, ///< the string's bytes had to be made from escapes
    Int64,
    UInt64,
    Double,
    True,
    False,
    Null,
};

/// A value or a member's name. A name is a string and stands directly before its value; members
/// and elements stand directly behind their container.
struct Token {
    TokenKind kind;
    /// Where the token begins in the text.
    std::uint32_t offset;
    /// The number's bits, the string's length, the index in Tape::escapedStrings, or for a
    /// container the number of members or elements (low half) and the index of the first token
    /// behind it (high half).
    std::uint64_t payload;
};

class CORVANE_UTILS_EXPORT Tape {
public:
    /// Where the bytes of an EscapedString are in Tape::unescaped.
    struct Piece {
        std::size_t begin;
        std::size_t length;
    };

    explicit Tape(std::string_view text) noexcept;
    Tape(const Tape&) = delete;
    Tape& operator=(const Tape&) = delete;
    ~Tape();

    [[nodiscard]] const Token& operator[](std::uint32_t index) const noexcept {
        return tokens[index];
    }
    /// The index behind the value at index and everything in it.
    [[nodiscard]] std::uint32_t behind(std::uint32_t index) const noexcept {
        const Token& token = tokens[index];
        return token.kind <= TokenKind::Array ? static_cast<std::uint32_t>(token.payload >> 32U)
                                              : index + 1;
    }
    [[nodiscard]] std::size_t count(std::uint32_t index) const noexcept {
        return static_cast<std::uint32_t>(tokens[index].payload);
    }
    [[nodiscard]] std::string_view string(std::uint32_t index) const noexcept {
        const Token& token = tokens[index];
        if (token.kind == TokenKind::String) {
            return {text.data() + token.offset + 1, static_cast<std::size_t>(token.payload)};
        }
        const Piece& piece = escapedStrings[static_cast<std::size_t>(token.payload)];
        return {unescaped.data() + piece.begin, piece.length};
    }

    /// The line and column of a byte of the text. The first call walks the text to find its
    /// lines; later ones search among these.
    [[nodiscard]] Location locate(std::size_t offset) const;

    std::string_view text;
    std::vector<Token> tokens;
    std::vector<Piece> escapedStrings;
    std::string unescaped;

private:
    /// Where each line begins; empty until a location is asked for.
    mutable std::vector<std::uint32_t> lines_;
};

} // namespace corvane::utils::json::decoder::detail
