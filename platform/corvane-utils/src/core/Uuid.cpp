#include <corvane/utils/core/Uuid.hpp>

#include <algorithm>
#include <array>
#include <functional>
#include <random>

namespace corvane::utils::core {

namespace {

constexpr std::size_t kTextLength = 36;

[[nodiscard]] constexpr bool isDashBeforeByte(std::size_t byte) noexcept {
    return byte == 4 || byte == 6 || byte == 8 || byte == 10;
}

[[nodiscard]] constexpr int digitValue(char digit) noexcept {
    if (digit >= '0' && digit <= '9') {
        return digit - '0';
    }
    if (digit >= 'a' && digit <= 'f') {
        return digit - 'a' + 10;
    }
    if (digit >= 'A' && digit <= 'F') {
        return digit - 'A' + 10;
    }
    return -1;
}

std::mt19937_64 seededGenerator() {
    std::random_device source;
    std::array<std::uint32_t, 8> words;
    std::generate(words.begin(), words.end(), std::ref(source));
    std::seed_seq seed(words.begin(), words.end());
    return std::mt19937_64(seed);
}

} // namespace

std::optional<Uuid> Uuid::parse(std::string_view text) noexcept {
    if (text.size() != kTextLength) {
        return std::nullopt;
    }
    Bytes bytes;
    auto position = text.begin();
    for (std::size_t index = 0; index != bytes.size(); ++index) {
        if (isDashBeforeByte(index) && *position++ != '-') {
            return std::nullopt;
        }
        const int high = digitValue(*position++);
        const int low = digitValue(*position++);
        if (high < 0 || low < 0) {
            return std::nullopt;
        }
        bytes[index] = static_cast<std::uint8_t>(high * 16 + low);
    }
    return Uuid(bytes);
}

Uuid Uuid::generate() {
    // The system's source can take 100 µs for one identifier, so it only gives the seed.
    thread_local std::mt19937_64 generator = seededGenerator();
    Bytes bytes;
    for (std::size_t index = 0; index != bytes.size(); index += 8) {
        const std::uint64_t word = generator();
        for (std::size_t offset = 0; offset != 8; ++offset) {
            bytes[index + offset] = static_cast<std::uint8_t>(word >> (8 * offset));
        }
    }
    bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0FU) | 0x40U); // version 4
    bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3FU) | 0x80U); // the RFC's variant
    return Uuid(bytes);
}

std::string Uuid::toString() const {
    static constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text;
    text.reserve(kTextLength);
    for (std::size_t index = 0; index != bytes_.size(); ++index) {
        if (isDashBeforeByte(index)) {
            text.push_back('-');
        }
        text.push_back(kDigits[bytes_[index] >> 4U]);
        text.push_back(kDigits[bytes_[index] & 0x0FU]);
    }
    return text;
}

} // namespace corvane::utils::core
