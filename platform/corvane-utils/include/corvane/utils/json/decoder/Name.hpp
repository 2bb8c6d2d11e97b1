#pragma once

#include <corvane/utils/export.hpp>
#include <corvane/utils/json/decoder/Location.hpp>
#include <corvane/utils/json/decoder/detail/Tape.hpp>

#include <cstdint>
#include <string_view>

namespace corvane::utils::json::decoder {

/// The name of a member of a JSON object, with its place in the text. A small value; one that
/// comes from a Document is valid while the document lives.
class CORVANE_UTILS_EXPORT Name {
public:
    /// A name that comes from no document. The text is borrowed.
    explicit Name(std::string_view text, const Location& location = {}) noexcept
        : text_(text), location_(location) {}

    /// The name's text (UTF-8).
    /// @{
    [[nodiscard]] std::string_view text() const noexcept { return text_; }
    operator std::string_view() const noexcept { return text_; }
    /// @}

    /// Compares the text.
    [[nodiscard]] friend bool operator==(const Name& name, std::string_view text) noexcept {
        return name.text_ == text;
    }

    /// Where the name stands; unknown for a name that came with no location.
    [[nodiscard]] Location location() const;

private:
    friend class Object;

    Name() noexcept = default;
    Name(const detail::Tape& tape, std::uint32_t index) noexcept
        : text_(tape.string(index)), tape_(&tape), index_(index) {}

    std::string_view text_;
    const detail::Tape* tape_ = nullptr;
    std::uint32_t index_ = 0;
    Location location_;
};

} // namespace corvane::utils::json::decoder
