#pragma once

// The product of two 64-bit numbers in all its 128 bits.

#include <cstdint>

namespace corvane::utils::numeric {

struct Wide {
    std::uint64_t high;
    std::uint64_t low;

    friend constexpr bool operator==(const Wide&, const Wide&) noexcept = default;
};

/// What multiply() does without help of the compiler: by the halves of both numbers.
[[nodiscard]] constexpr Wide multiplyByHalves(std::uint64_t left, std::uint64_t right) noexcept {
    constexpr std::uint64_t half = 0xFFFF'FFFFU;
    const std::uint64_t lowLow = (left & half) * (right & half);
    const std::uint64_t lowHigh = (left & half) * (right >> 32U);
    const std::uint64_t highLow = (left >> 32U) * (right & half);
    const std::uint64_t highHigh = (left >> 32U) * (right >> 32U);
    const std::uint64_t middle = (lowLow >> 32U) + (lowHigh & half) + (highLow & half);
    return {highHigh + (lowHigh >> 32U) + (highLow >> 32U) + (middle >> 32U),
            (middle << 32U) | (lowLow & half)};
}

/// One instruction where the compiler has a name for it.
[[nodiscard]] constexpr Wide multiply(std::uint64_t left, std::uint64_t right) noexcept {
#if defined(__SIZEOF_INT128__)
    __extension__ using Product = unsigned __int128;
    const Product product = static_cast<Product>(left) * right;
    return {static_cast<std::uint64_t>(product >> 64U), static_cast<std::uint64_t>(product)};
#else
    return multiplyByHalves(left, right);
#endif
}

} // namespace corvane::utils::numeric
