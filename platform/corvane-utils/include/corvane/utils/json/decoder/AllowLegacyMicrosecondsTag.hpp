#pragma once

namespace corvane::utils::json::decoder {

/// Asks a loading operation to accept the older form of a time span, a count of microseconds.
struct AllowLegacyMicrosecondsTag {
    explicit AllowLegacyMicrosecondsTag() = default;
};

/// The tag's one value.
inline constexpr AllowLegacyMicrosecondsTag kAllowLegacyMicroseconds{};

} // namespace corvane::utils::json::decoder
