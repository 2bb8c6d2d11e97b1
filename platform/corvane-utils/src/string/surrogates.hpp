#pragma once

// The two code units of UTF-16 that together stand for a character above U+FFFF.

namespace corvane::utils::string {

[[nodiscard]] constexpr bool isLeadingSurrogate(char32_t unit) noexcept {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

[[nodiscard]] constexpr bool isTrailingSurrogate(char32_t unit) noexcept {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

[[nodiscard]] constexpr char32_t combineSurrogates(char32_t leading, char32_t trailing) noexcept {
    return 0x10000U + ((leading - 0xD800U) << 10U) + (trailing - 0xDC00U);
}

} // namespace corvane::utils::string
