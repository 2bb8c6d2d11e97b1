#include "columns.hpp"

#include <algorithm>

namespace pump_station::demo {

std::string padded(std::string text, std::size_t width) {
    const auto isFirstByte = [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    };
    const auto characters =
        static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isFirstByte));
    text.append(characters < width ? width - characters : 0, ' ');
    text += ' ';
    return text;
}

std::string errorCountText(std::uint64_t count) {
    if (count == 0) {
        return "no errors";
    }
    return count == 1 ? "1 error" : std::to_string(count) + " errors";
}

} // namespace pump_station::demo
