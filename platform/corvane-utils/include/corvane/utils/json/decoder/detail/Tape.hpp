#pragma once

#include <corvane/utils/export.hpp>
#include <corvane/utils/json/decoder/Location.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::utils::json::decoder::detail {

enum class TokenKind : std::uint8_t {
    Object,
    Array,
    Int64,
    UInt64,
    Double,
    String,        ///< the text itself holds the string's bytes
    EscapedString, ///< the string's bytes had to be made from escapes
    True,
    False,
    Null,
};

/// The first word of a value or of a member's name. A name is a string and stands directly before
/// its value; members and elements stand directly behind their container.
class Token {
public:
    /// The longest string that a token describes itself.
    static constexpr std::size_t kMaximumLength = (std::size_t{1} << 28U) - 1;

    constexpr explicit Token(std::uint64_t word) noexcept : word_(word) {}
    /// @pre length <= kMaximumLength.
    constexpr Token(TokenKind kind, std::uint32_t large, std::size_t length = 0) noexcept
        : word_(std::uint64_t{large} << 32U | std::uint64_t{length} << 4U |
                static_cast<std::uint64_t>(kind)) {}

    [[nodiscard]] constexpr std::uint64_t word() const noexcept { return word_; }
    [[nodiscard]] constexpr TokenKind kind() const noexcept {
        return static_cast<TokenKind>(word_ & 0x0FU);
    }
    [[nodiscard]] constexpr bool isContainer() const noexcept { return kind() <= TokenKind::Array; }
    /// Whether a second word follows: the bits of a number, or for a container the number of
    /// members or elements (low half) and the index behind them (high half).
    [[nodiscard]] constexpr bool hasSecondWord() const noexcept {
        return kind() <= TokenKind::Double;
    }
    /// Where the token begins in the text; for an EscapedString its index in Tape::escapedStrings.
    [[nodiscard]] constexpr std::uint32_t large() const noexcept {
        return static_cast<std::uint32_t>(word_ >> 32U);
    }
    /// The length of a String.
    [[nodiscard]] constexpr std::size_t length() const noexcept {
        return static_cast<std::uint32_t>(word_) >> 4U;
    }

private:
    std::uint64_t word_;
};

/// The tokens of a JSON text in the order of the text, as the pull classes read them. Made once by
/// a decoder::Document and not changed afterwards.
class CORVANE_UTILS_EXPORT Tape {
public:
    /// Where the bytes of an EscapedString are in Tape::unescaped, and where it begins in the text.
    struct Piece {
        std::size_t begin;
        std::size_t length;
        std::uint32_t offset;
    };

    explicit Tape(std::string_view text) noexcept;
    Tape(const Tape&) = delete;
    Tape& operator=(const Tape&) = delete;
    ~Tape();

    [[nodiscard]] Token operator[](std::uint32_t index) const noexcept {
        return Token(words[index]);
    }
    /// The bits of a number.
    [[nodiscard]] std::uint64_t bits(std::uint32_t index) const noexcept {
        return words[index + 1];
    }
    /// The index of the first member's name or the first element of a container.
    [[nodiscard]] static std::uint32_t within(std::uint32_t index) noexcept { return index + 2; }
    /// The number of members or elements of a container.
    [[nodiscard]] std::size_t count(std::uint32_t index) const noexcept {
        return static_cast<std::uint32_t>(words[index + 1]);
    }
    /// The index behind the value at index and everything in it.
    [[nodiscard]] std::uint32_t behind(std::uint32_t index) const noexcept {
        const Token token = (*this)[index];
        if (token.isContainer()) {
            return static_cast<std::uint32_t>(words[index + 1] >> 32U);
        }
        return index + (token.hasSecondWord() ? 2 : 1);
    }
    [[nodiscard]] std::string_view string(std::uint32_t index) const noexcept {
        const Token token = (*this)[index];
        if (token.kind() == TokenKind::String) {
            return {text.data() + token.large() + 1, token.length()};
        }
        const Piece& piece = escapedStrings[token.large()];
        return {unescaped.data() + piece.begin, piece.length};
    }
    /// Where the token begins in the text.
    [[nodiscard]] std::size_t offset(std::uint32_t index) const noexcept {
        const Token token = (*this)[index];
        return token.kind() == TokenKind::EscapedString ? escapedStrings[token.large()].offset
                                                        : token.large();
    }

    /// The line and column of a byte of the text. The first call walks the text to find its
    /// lines; later ones search among these.
    [[nodiscard]] Location locate(std::size_t offset) const;
    [[nodiscard]] Location location(std::uint32_t index) const { return locate(offset(index)); }

    std::string_view text;
    std::unique_ptr<std::uint64_t[]> words;
    std::vector<Piece> escapedStrings;
    std::string unescaped;

private:
    /// Where each line begins; empty until a location is asked for.
    mutable std::vector<std::uint32_t> lines_;
};

} // namespace corvane::utils::json::decoder::detail
