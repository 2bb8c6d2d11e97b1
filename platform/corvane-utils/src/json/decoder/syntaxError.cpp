#include "syntaxError.hpp"

#include "../../string/Utf8Sequence.hpp"
#include <corvane/utils/json/decoder/detail/WrappedException.hpp>

#include <algorithm>
#include <array>
#include <cstdint>
#include <format>
#include <stdexcept>

namespace corvane::utils::json::decoder::detail {

namespace {

struct CharacterRange {
    char32_t first;
    char32_t last;
};

/// What is not seen, or changes how the text around it is seen: controls, joiners, separators,
/// directions and tags.
constexpr std::array kControls = {
    CharacterRange{0x0000, 0x001F},   CharacterRange{0x007F, 0x009F},
    CharacterRange{0x00AD, 0x00AD},   CharacterRange{0x061C, 0x061C},
    CharacterRange{0x180E, 0x180E},   CharacterRange{0x200B, 0x200F},
    CharacterRange{0x2028, 0x202E},   CharacterRange{0x2060, 0x206F},
    CharacterRange{0xFEFF, 0xFEFF},   CharacterRange{0xFFF9, 0xFFFB},
    CharacterRange{0xE0000, 0xE007F},
};

[[nodiscard]] bool isControl(char32_t character) noexcept {
    return std::ranges::any_of(kControls, [character](const CharacterRange& range) {
        return range.first <= character && character <= range.last;
    });
}

} // namespace

void throwSyntaxError(const Tape& tape, std::size_t offset, std::string_view what) {
    const Location location = tape.locate(offset);
    throw WrappedException<std::runtime_error>(
        location,
        std::runtime_error(std::format("JSON syntax error (line {}): {}", location.line(), what)));
}

std::string describeUnexpected(std::string_view rest) {
    if (rest.empty()) {
        return "unexpected end of the text";
    }
    const auto sequence = string::readUtf8Sequence(rest.data(), rest.data() + rest.size());
    if (!sequence.isWellFormed) {
        return std::format("malformed UTF-8 at byte 0x{:02X}",
                           static_cast<unsigned char>(rest.front()));
    }
    if (isControl(sequence.character)) {
        return std::format("unexpected control character U+{:04X}",
                           static_cast<std::uint32_t>(sequence.character));
    }
    const char quote = rest.front() == '\'' ? '"' : '\'';
    return std::format("unexpected character {0}{1}{0}", quote, rest.substr(0, sequence.length));
}

} // namespace corvane::utils::json::decoder::detail
