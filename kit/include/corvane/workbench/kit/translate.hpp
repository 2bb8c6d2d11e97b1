#pragma once

// The texts of a skill on their way to the user: translated in the context of the skill (see
// Skill::Description), with values in place of "{}".

#include <corvane/workbench/kit/Text.hpp>

#include <tl/expected.hpp>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace corvane::utils::core {
class Uuid;
}
namespace corvane::workbench::chrono {
class Duration;
}

namespace corvane::workbench::kit {

/// A value as the user reads it: a number as the shortest text that stands for it. Narrow text is
/// UTF-8.
/// @{
[[nodiscard]] std::wstring valueText(double number);
[[nodiscard]] std::wstring valueText(std::int64_t number);
[[nodiscard]] std::wstring valueText(std::uint64_t number);
[[nodiscard]] std::wstring valueText(const chrono::Duration& duration);
[[nodiscard]] std::wstring valueText(const utils::core::Uuid& uuid);
[[nodiscard]] std::wstring valueText(std::string_view text);
[[nodiscard]] std::wstring valueText(std::wstring_view text);
template <std::signed_integral Integer>
[[nodiscard]] std::wstring valueText(Integer number) {
    return valueText(static_cast<std::int64_t>(number));
}
template <std::unsigned_integral Integer>
[[nodiscard]] std::wstring valueText(Integer number) {
    return valueText(static_cast<std::uint64_t>(number));
}
/// @}

/// A text with one "{}" for each of Count values; another number of them does not compile.
template <std::size_t Count>
class Format {
public:
    /// Only literals compile. "{{" and "}}" stand for braces.
    // NOLINTNEXTLINE(google-explicit-constructor): literals are written as they are
    consteval Format(const char* literal) : text_(literal) {
        std::size_t places = 0;
        for (std::string_view rest = literal; !rest.empty(); rest.remove_prefix(1)) {
            if (rest.starts_with("{{") || rest.starts_with("}}")) {
                rest.remove_prefix(1);
            } else if (rest.starts_with("{}")) {
                ++places;
                rest.remove_prefix(1);
            } else if (rest.front() == '{' || rest.front() == '}') {
                throw "write {{ and }} for braces that stand for themselves";
            }
        }
        if (places != Count) {
            throw "a text needs one {} for each value";
        }
    }
    /// The text with its "{}".
    [[nodiscard]] constexpr Text text() const noexcept { return text_; }

private:
    Text text_;
};

namespace internal {

[[nodiscard]] std::wstring format(std::string_view english,
                                  std::initializer_list<std::wstring> values);

} // namespace internal

/// The text as the user is to see it.
[[nodiscard]] std::wstring text(Text english);

/// The same with the values in place of the "{}".
template <class First, class... More>
[[nodiscard]] std::wstring text(Format<1 + sizeof...(More)> english, const First& first,
                                const More&... more) {
    return internal::format(english.text(), {valueText(first), valueText(more)...});
}

/// The error of a State: the text as above.
/// @{
[[nodiscard]] tl::unexpected<std::wstring> error(Text english);
template <class First, class... More>
[[nodiscard]] tl::unexpected<std::wstring> error(Format<1 + sizeof...(More)> english,
                                                 const First& first, const More&... more) {
    return tl::unexpected(text(english, first, more...));
}
/// @}

} // namespace corvane::workbench::kit
