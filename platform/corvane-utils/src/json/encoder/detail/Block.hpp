// Sixteen bytes of a text, looked at in one go. A byte is clean if a string of JSON may hold it as
// it is without a second look: ASCII but for the control characters, the quote and the backslash.
#pragma once

#include <cstdint>
#include <cstring>

#if defined(__SSE2__) || (defined(_MSC_VER) && defined(_M_X64))
#include <emmintrin.h>
#endif

namespace corvane::utils::json::encoder::detail {

/// The highest bit of every byte that is not clean, and perhaps of one that is, above one that is
/// not.
[[nodiscard]] constexpr std::uint64_t uncleanBytes(std::uint64_t bytes) noexcept {
    constexpr std::uint64_t ones = 0x0101'0101'0101'0101U;
    // With one bit changed the quote becomes the blank, and nothing else that is clean does.
    static_assert(('"' ^ 0x02) == 0x20);
    return (((bytes ^ (0x02 * ones)) - 0x21 * ones) | ((bytes ^ ('\\' * ones)) - ones) | bytes) &
           (0x80 * ones);
}

template <class Word>
[[nodiscard]] Word load(const char* from) noexcept {
    Word word{};
    std::memcpy(&word, from, sizeof word);
    return word;
}

template <class Word>
void store(char* to, Word word) noexcept {
    std::memcpy(to, &word, sizeof word);
}

/// The block of every machine.
class WordBlock {
public:
    WordBlock(std::uint64_t first, std::uint64_t second) noexcept
        : first_(first), second_(second) {}
    explicit WordBlock(const char* from) noexcept
        : WordBlock(load<std::uint64_t>(from), load<std::uint64_t>(from + 8)) {}

    void copyTo(char* to) const noexcept {
        store(to, first_);
        store(to + 8, second_);
    }
    [[nodiscard]] bool isClean() const noexcept {
        return (uncleanBytes(first_) | uncleanBytes(second_)) == 0;
    }

private:
    std::uint64_t first_;
    std::uint64_t second_;
};

#if defined(__SSE2__) || (defined(_MSC_VER) && defined(_M_X64))

/// The same in a third of the instructions.
class Sse2Block {
public:
    Sse2Block(std::uint64_t first, std::uint64_t second) noexcept
        : bytes_(_mm_set_epi64x(static_cast<std::int64_t>(second),
                                static_cast<std::int64_t>(first))) {}
    explicit Sse2Block(const char* from) noexcept : bytes_(load<__m128i>(from)) {}

    void copyTo(char* to) const noexcept { store(to, bytes_); }
    [[nodiscard]] bool isClean() const noexcept {
        // The comparison is one of signed numbers: bytes above ASCII are negative.
        const __m128i control = _mm_cmplt_epi8(bytes_, _mm_set1_epi8(0x20));
        const __m128i quote = _mm_cmpeq_epi8(bytes_, _mm_set1_epi8('"'));
        const __m128i backslash = _mm_cmpeq_epi8(bytes_, _mm_set1_epi8('\\'));
        return _mm_movemask_epi8(_mm_or_si128(_mm_or_si128(control, quote), backslash)) == 0;
    }

private:
    __m128i bytes_;
};

using Block = Sse2Block;

#else

using Block = WordBlock;

#endif

} // namespace corvane::utils::json::encoder::detail
