#pragma once

#include <corvane/workbench/kit/Text.hpp>

#include <tl/expected.hpp>

#include <string>

namespace corvane::workbench::kit {

/// Whether a setting is valid: success, or the message that the user reads.
using State = tl::expected<void, std::wstring>;

/// Success when the condition holds, otherwise the message, translated.
[[nodiscard]] State require(bool condition, Text message);

/// Success when the lookup found something, otherwise its own message.
template <class T>
[[nodiscard]] State resolves(const tl::expected<T, std::wstring>& lookup) {
    if (lookup) {
        return {};
    }
    return tl::unexpected(lookup.error());
}

} // namespace corvane::workbench::kit
