#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <stdexcept>
#include <type_traits>

namespace corvane::utils::core {

/// The number of positions a Flags<E> has. Specialise it for an enumeration with fewer.
template <class E>
inline constexpr std::size_t kFlagCount = 32;

/// A set of enumerators kept as one bit each: bit n stands for the enumerator with value n.
/// A plain value of 32 bits; no thread rules beyond those of an integer.
template <class E>
    requires std::is_enum_v<E>
class Flags {
public:
    static_assert(kFlagCount<E> <= 32);

    /// No bit is set.
    constexpr Flags() noexcept = default;

    /// @throws std::out_of_range "invalid bitset position", as test() does.
    /// @{
    constexpr Flags(E flag) : bits_(maskOf(flag)) {}
    constexpr Flags(std::initializer_list<E> flags) {
        for (const E flag : flags) {
            set(flag);
        }
    }
    /// @}

    /// Takes the bits as they are, also those at positions that no enumerator has.
    [[nodiscard]] static constexpr Flags fromBits(std::uint32_t bits) noexcept {
        Flags flags;
        flags.bits_ = bits;
        return flags;
    }
    /// Bit n stands for the enumerator with value n.
    [[nodiscard]] constexpr std::uint32_t bits() const noexcept { return bits_; }

    /// @throws std::out_of_range "invalid bitset position" for an enumerator that is negative or
    ///         not less than kFlagCount<E>.
    [[nodiscard]] constexpr bool test(E flag) const { return (bits_ & maskOf(flag)) != 0; }
    /// Bits at positions that no enumerator has count as well.
    /// @{
    [[nodiscard]] constexpr bool any() const noexcept { return bits_ != 0; }
    [[nodiscard]] constexpr bool none() const noexcept { return bits_ == 0; }
    /// @}

    /// @throws std::out_of_range as test() does; the flags are then unchanged.
    constexpr Flags& set(E flag) {
        bits_ |= maskOf(flag);
        return *this;
    }
    /// @throws std::out_of_range as test() does; the flags are then unchanged.
    constexpr Flags& reset(E flag) {
        bits_ &= ~maskOf(flag);
        return *this;
    }

    /// Adds the other's bits.
    constexpr Flags& operator|=(Flags other) noexcept {
        bits_ |= other.bits_;
        return *this;
    }
    /// Keeps the bits that both have.
    constexpr Flags& operator&=(Flags other) noexcept {
        bits_ &= other.bits_;
        return *this;
    }
    /// The bits that either has.
    [[nodiscard]] friend constexpr Flags operator|(Flags left, Flags right) noexcept {
        return left |= right;
    }
    /// The bits that both have.
    [[nodiscard]] friend constexpr Flags operator&(Flags left, Flags right) noexcept {
        return left &= right;
    }
    /// Compares all bits.
    [[nodiscard]] friend constexpr bool operator==(Flags left, Flags right) noexcept = default;

private:
    [[nodiscard]] static constexpr std::uint32_t maskOf(E flag) {
        // A negative enumerator becomes a position far past the end.
        const auto position =
            static_cast<std::uint64_t>(static_cast<std::underlying_type_t<E>>(flag));
        if (position >= kFlagCount<E>) {
            throw std::out_of_range("invalid bitset position");
        }
        return std::uint32_t{1} << position;
    }

    std::uint32_t bits_ = 0;
};

} // namespace corvane::utils::core
