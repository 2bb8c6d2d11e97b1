#include "KeyedHash.hpp"

#include <bit>
#include <cstddef>
#include <cstring>
#include <random>

namespace corvane::workbench::json::internal {

namespace {

constexpr std::size_t kWord = sizeof(std::uint64_t);

[[nodiscard]] std::uint64_t loadWord(const char* bytes) noexcept {
    static_assert(std::endian::native == std::endian::little);
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

/// The bytes behind the last whole word, fewer than a word has.
[[nodiscard]] std::uint64_t loadTail(std::string_view text) noexcept {
    const std::size_t count = text.size() % kWord;
    const char* const end = text.data() + text.size();
    if (count == 0) {
        return 0;
    }
    if (text.size() > kWord) {
        return loadWord(end - kWord) >> (8 * (kWord - count));
    }
    std::uint64_t word = 0;
    for (const char byte : text) {
        word = word >> 8U | std::uint64_t{static_cast<unsigned char>(byte)} << 56U;
    }
    return word >> (8 * (kWord - count));
}

class State {
public:
    State(std::uint64_t firstKey, std::uint64_t secondKey) noexcept
        : a_(firstKey ^ 0x736F'6D65'7073'6575U), b_(secondKey ^ 0x646F'7261'6E64'6F6DU),
          c_(firstKey ^ 0x6C79'6765'6E65'7261U), d_(secondKey ^ 0x7465'6462'7974'6573U) {}

    void add(std::uint64_t word) noexcept {
        d_ ^= word;
        mix();
        a_ ^= word;
    }
    [[nodiscard]] std::uint64_t finish() noexcept {
        c_ ^= 0xFFU;
        mix();
        mix();
        mix();
        return a_ ^ b_ ^ c_ ^ d_;
    }

private:
    void mix() noexcept {
        a_ += b_;
        c_ += d_;
        b_ = std::rotl(b_, 13) ^ a_;
        d_ = std::rotl(d_, 16) ^ c_;
        a_ = std::rotl(a_, 32) + d_;
        c_ += b_;
        d_ = std::rotl(d_, 21) ^ a_;
        b_ = std::rotl(b_, 17) ^ c_;
        c_ = std::rotl(c_, 32);
    }

    std::uint64_t a_;
    std::uint64_t b_;
    std::uint64_t c_;
    std::uint64_t d_;
};

[[nodiscard]] std::uint64_t drawKey(std::random_device& source) {
    static_assert(std::random_device::max() == 0xFFFF'FFFFU);
    const std::uint64_t high = source();
    return high << 32U | source();
}

} // namespace

const KeyedHash& KeyedHash::ofThisProcess() {
    static const KeyedHash hash = [] {
        std::random_device source;
        const std::uint64_t firstKey = drawKey(source);
        return KeyedHash(firstKey, drawKey(source));
    }();
    return hash;
}

std::uint64_t KeyedHash::operator()(std::string_view text) const noexcept {
    State state(firstKey_, secondKey_);
    for (std::size_t place = 0; text.size() - place >= kWord; place += kWord) {
        state.add(loadWord(text.data() + place));
    }
    // The last word ends with the length.
    state.add(loadTail(text) | std::uint64_t{text.size()} << 56U);
    return state.finish();
}

} // namespace corvane::workbench::json::internal
