#pragma once

// Validity rules: what the state of a property is made of.

#include <tl/expected.hpp>

#include <string>
#include <string_view>

namespace pump_station {

/// The state of a property: success, or the message that the user reads.
using State = tl::expected<void, std::wstring>;

/// Success when the condition holds, otherwise the message, translated.
[[nodiscard]] State require(bool condition, std::string_view message);

/// The state of a reference: success when it resolves, otherwise the library's own explanation.
template <class T>
[[nodiscard]] State resolves(const tl::expected<T, std::wstring>& target) {
    if (target) {
        return {};
    }
    return tl::unexpected(target.error());
}

} // namespace pump_station
