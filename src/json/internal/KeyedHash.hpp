#pragma once

#include <cstdint>
#include <string_view>

namespace corvane::workbench::json::internal {

/// A hash of texts under a secret key: whoever does not know the key cannot choose texts that
/// collide. The function is SipHash-1-3.
class KeyedHash {
public:
    constexpr KeyedHash(std::uint64_t firstKey, std::uint64_t secondKey) noexcept
        : firstKey_(firstKey), secondKey_(secondKey) {}

    /// The one under a key that is drawn at random once in a process.
    [[nodiscard]] static const KeyedHash& ofThisProcess();

    [[nodiscard]] std::uint64_t operator()(std::string_view text) const noexcept;

private:
    std::uint64_t firstKey_;
    std::uint64_t secondKey_;
};

} // namespace corvane::workbench::json::internal
