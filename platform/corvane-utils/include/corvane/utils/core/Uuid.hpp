#pragma once

#include <corvane/utils/export.hpp>

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace corvane::utils::core {

/// A universally unique identifier of 16 bytes in network order. A plain value; the default is
/// the nil identifier.
class CORVANE_UTILS_EXPORT Uuid {
public:
    /// The bytes in network order.
    using Bytes = std::array<std::uint8_t, 16>;

    /// The nil identifier: all bytes are zero.
    constexpr Uuid() noexcept = default;
    /// Takes any bytes: version and variant are not checked.
    constexpr explicit Uuid(const Bytes& bytes) noexcept : bytes_(bytes) {}

    /// Reads the form 8-4-4-4-12 of hexadecimal digits in either case, which must be the whole
    /// text. Anything else gives an empty result.
    [[nodiscard]] static std::optional<Uuid> parse(std::string_view text) noexcept;

    /// Makes a random identifier (version 4). Safe to call from any thread.
    /// @throws std::runtime_error when the system has no source of randomness (a thread's first
    ///         call only).
    [[nodiscard]] static Uuid generate();

    /// The form 8-4-4-4-12 in lower case.
    [[nodiscard]] std::string toString() const;

    /// Whether all bytes are zero.
    [[nodiscard]] constexpr bool isNil() const noexcept { return bytes_ == Bytes{}; }
    /// In network order.
    [[nodiscard]] constexpr const Bytes& bytes() const noexcept { return bytes_; }

    /// Orders by bytes, which is also the order of the texts.
    [[nodiscard]] friend constexpr auto operator<=>(const Uuid& left,
                                                    const Uuid& right) noexcept = default;

private:
    Bytes bytes_{};
};

} // namespace corvane::utils::core

/// @cond
template <>
struct std::hash<corvane::utils::core::Uuid> {
    [[nodiscard]] std::size_t operator()(const corvane::utils::core::Uuid& uuid) const noexcept {
        // FNV-1a: identifiers of other versions than 4 share most of their bytes.
        std::uint64_t value = 0xcbf29ce484222325U;
        for (const std::uint8_t byte : uuid.bytes()) {
            value = (value ^ byte) * 0x100000001b3U;
        }
        return static_cast<std::size_t>(value ^ (value >> 32U));
    }
};
/// @endcond
