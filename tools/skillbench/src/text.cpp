#include "text.hpp"

#include <algorithm>

namespace corvane::skillbench {

std::string padded(std::string_view text, std::size_t width) {
    const auto characters =
        static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char character) {
            return (static_cast<unsigned char>(character) & 0xC0U) != 0x80U;
        }));
    return std::string(text) + std::string(width - std::min(width, characters), ' ');
}

} // namespace corvane::skillbench
