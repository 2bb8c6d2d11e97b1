#pragma once

// UUIDs as literals, checked by the compiler.

#include <corvane/utils/core/Uuid.hpp>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string_view>

namespace corvane::workbench::kit {

namespace internal {

consteval std::uint8_t hexadecimalDigit(char digit) {
    if (digit >= '0' && digit <= '9') {
        return static_cast<std::uint8_t>(digit - '0');
    }
    if (digit >= 'a' && digit <= 'f') {
        return static_cast<std::uint8_t>(digit - 'a' + 10);
    }
    if (digit >= 'A' && digit <= 'F') {
        return static_cast<std::uint8_t>(digit - 'A' + 10);
    }
    throw std::invalid_argument("a UUID is made of hexadecimal digits");
}

} // namespace internal

inline namespace literals {

/// "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a03"_uuid; anything else does not compile.
consteval utils::core::Uuid operator""_uuid(const char* text, std::size_t size) {
    constexpr std::string_view kForm = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";
    if (size != kForm.size()) {
        throw std::invalid_argument("a UUID has the form 8-4-4-4-12");
    }
    utils::core::Uuid::Bytes bytes{};
    std::size_t digits = 0;
    for (std::size_t index = 0; index < size; ++index) {
        if (kForm[index] == '-') {
            if (text[index] != '-') {
                throw std::invalid_argument("a UUID has the form 8-4-4-4-12");
            }
            continue;
        }
        bytes[digits / 2] = static_cast<std::uint8_t>(bytes[digits / 2] * 16 +
                                                      internal::hexadecimalDigit(text[index]));
        ++digits;
    }
    return utils::core::Uuid(bytes);
}

} // namespace literals

} // namespace corvane::workbench::kit
