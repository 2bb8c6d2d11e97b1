#pragma once

#include <cstddef>

namespace corvane::utils::string::detail {

/// Counts the UTF-16 code units of the characters it is given.
class Utf16CodeUnitCounter {
public:
    constexpr void operator()(char32_t character) noexcept {
        count_ += character >= 0x10000 ? 2U : 1U;
    }
    [[nodiscard]] constexpr std::size_t count() const noexcept { return count_; }

private:
    std::size_t count_ = 0;
};

} // namespace corvane::utils::string::detail
