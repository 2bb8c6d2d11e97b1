#pragma once

// Eight bytes of a JSON text at once, as a number whose lowest byte is the first one.

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace corvane::utils::json {

inline constexpr std::size_t kEight = 8;
inline constexpr std::uint64_t kOnes = 0x0101010101010101U;

template <class Word>
[[nodiscard]] Word load(const char* from) noexcept {
    static_assert(std::endian::native == std::endian::little);
    Word bytes{};
    std::memcpy(&bytes, from, sizeof bytes);
    return bytes;
}

[[nodiscard]] inline std::uint64_t loadEightBytes(const char* from) noexcept {
    return load<std::uint64_t>(from);
}

template <class Word>
void store(char* to, Word bytes) noexcept {
    std::memcpy(to, &bytes, sizeof bytes);
}

/// Tells the bytes that do not stand for themselves in a JSON string, which are control characters,
/// quotes, backslashes and what is not ASCII: the highest bit of the first of them is the first one
/// that is set.
[[nodiscard]] constexpr std::uint64_t specialBytes(std::uint64_t bytes) noexcept {
    // Changing one bit makes the quote a space and of no other plain character a lower one. A
    // borrow may set a bit wrongly, but only behind one that is set rightly.
    static_assert(('"' ^ 0x02) == ' ');
    return (((bytes ^ (0x02 * kOnes)) - 0x21 * kOnes) | ((bytes ^ ('\\' * kOnes)) - kOnes) |
            bytes) &
           (0x80 * kOnes);
}

/// How many bytes at the front stand for themselves.
[[nodiscard]] constexpr std::size_t countPlainBytes(std::uint64_t bytes) noexcept {
    return static_cast<std::size_t>(std::countr_zero(specialBytes(bytes))) / 8;
}

/// How many bytes at the front are spaces.
[[nodiscard]] constexpr std::size_t countSpaces(std::uint64_t bytes) noexcept {
    return static_cast<std::size_t>(std::countr_zero(bytes ^ (' ' * kOnes))) / 8;
}

/// How many bytes at the front are digits.
[[nodiscard]] constexpr std::size_t countDigits(std::uint64_t bytes) noexcept {
    // As in specialBytes(), the first bit that is set is right.
    const std::uint64_t digits = bytes ^ ('0' * kOnes);
    const std::uint64_t others = (digits | (digits + 0x76 * kOnes)) & (0x80 * kOnes);
    return static_cast<std::size_t>(std::countr_zero(others)) / 8;
}

/// The number that so many digits at the front stand for.
[[nodiscard]] constexpr std::uint32_t readDigits(std::uint64_t bytes, std::size_t count) noexcept {
    if (count == 0) {
        return 0;
    }
    // With zeros in front they are eight. First come the four pairs, each in two bytes, then all
    // pairs by their weights in the high half.
    constexpr std::uint64_t pair = 0x000000FF000000FFU;
    const std::uint64_t digits = (bytes & (0x0F * kOnes)) << (8 * (kEight - count));
    const std::uint64_t pairs = digits * 10 + (digits >> 8U);
    const std::uint64_t weighted = (pairs & pair) * (100 + (std::uint64_t{1'000'000} << 32U)) +
                                   ((pairs >> 16U) & pair) * (1 + (std::uint64_t{10'000} << 32U));
    return static_cast<std::uint32_t>(weighted >> 32U);
}

} // namespace corvane::utils::json
