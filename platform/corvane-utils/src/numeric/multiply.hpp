// The product of two 64-bit numbers in all its 128 bits.
#pragma once

#include <cstdint>

namespace corvane::utils::numeric {

struct Wide {
    std::uint64_t high;
    std::uint64_t low;

    friend constexpr bool operator==(const Wide&, const Wide&) noexcept = default;
};

[[nodiscard]] constexpr Wide multiply(std::uint64_t left, std::uint64_t right) noexcept {
    // By the halves of both numbers: standard C++ has no name for the one instruction that does it.
    constexpr std::uint64_t half = 0xFFFF'FFFFU;
    const std::uint64_t lowLow = (left & half) * (right & half);
    const std::uint64_t lowHigh = (left & half) * (right >> 32U);
    const std::uint64_t highLow = (left >> 32U) * (right & half);
    const std::uint64_t highHigh = (left >> 32U) * (right >> 32U);
    const std::uint64_t middle = (lowLow >> 32U) + (lowHigh & half) + (highLow & half);
    return {highHigh + (lowHigh >> 32U) + (highLow >> 32U) + (middle >> 32U),
            (middle << 32U) | (lowLow & half)};
}

} // namespace corvane::utils::numeric
