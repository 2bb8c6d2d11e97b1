#pragma once

#include <corvane/utils/json/decoder/Document.hpp>
#include <corvane/utils/json/decoder/detail/Tape.hpp>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace corvane::utils::json::decoder::detail {

/// From a JSON text (RFC 8259) to the tokens that the pull classes read.
///
/// Goes once over the text, without recursion.
class Scanner {
public:
    explicit Scanner(Tape& tape);

    /// Fills the tape and returns where the root value ends.
    /// @throws WrappedException of std::runtime_error for the first syntax error.
    [[nodiscard]] std::size_t scan();

private:
    void checkBeginning() const;
    void scanValue();
    [[nodiscard]] bool goToNextValue();
    void openContainer(TokenKind kind, char end);
    void closeContainer();
    void scanName();
    void scanNumber();
    void scanLiteral(std::string_view literal, TokenKind kind);

    void scanString();
    void scanEscapedString(const char* quote);
    void skipText();
    void scanEscape();
    [[nodiscard]] char32_t scanEscapedCharacter();
    [[nodiscard]] char32_t scanCodeUnit();

    void add(Token token) {
        makeRoom();
        *next_++ = token.word();
    }
    void add(Token token, std::uint64_t secondWord) {
        makeRoom();
        next_[0] = token.word();
        next_[1] = secondWord;
        next_ += 2;
    }
    void makeRoom() {
        if (limit_ - next_ < kMaximumTokenSize) {
            grow();
        }
    }
    void grow();
    [[nodiscard]] std::uint32_t tapeSize() const noexcept {
        return static_cast<std::uint32_t>(next_ - tape_.words.get());
    }
    /// Goes behind whitespace and returns what peek() does there.
    char skipWhitespace() noexcept {
        if (position_ != end_ && *position_ <= ' ') {
            skipWhitespaceRun();
        }
        return peek();
    }
    void skipWhitespaceRun() noexcept;
    /// The next character, or a null character at the end of the text.
    [[nodiscard]] char peek() const noexcept { return position_ == end_ ? '\0' : *position_; }
    [[nodiscard]] std::uint32_t offsetOf(const char* place) const noexcept {
        return static_cast<std::uint32_t>(place - begin_);
    }
    [[noreturn]] void fail(const char* place, std::string_view what) const;
    [[noreturn]] void failUnexpected(const char* place) const;

    static constexpr std::ptrdiff_t kMaximumTokenSize = 2;

    /// An object or array that is not complete.
    struct Level {
        /// The character that ends it.
        char end;
        std::uint32_t count;
        std::uint32_t index;
    };

    Tape& tape_;
    const char* const begin_;
    const char* const end_;
    const char* position_;
    /// Behind the tape's last word, and behind the room that it has.
    std::uint64_t* next_ = nullptr;
    std::uint64_t* limit_ = nullptr;
    /// The first level stands for what is around the root value.
    std::array<Level, Document::kMaximumDepth + 1> levels_;
    Level* level_ = levels_.data();
};

} // namespace corvane::utils::json::decoder::detail
