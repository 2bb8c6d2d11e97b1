#include <corvane/workbench/model/ElementCategory.hpp>

#include <algorithm>
#include <array>
#include <ostream>
#include <sstream>

namespace corvane::workbench::model {

namespace {

// In the order of the enumerators. All texts are ASCII, so that a character has the same value in
// every character type.
constexpr std::array<std::string_view, 17> kNames = {
    "root element",       "element group",  "data point", "timer",        "execution track",
    "execution pipeline", "device",         "sub device", "device group", "data point group",
    "transaction",        "microservice",   "AI",         "data storage", "external interface",
    "special purpose",    "custom element",
};
constexpr std::string_view kUnknown = "unknown";

constexpr std::size_t kLongest =
    std::ranges::max(kNames, {}, [](std::string_view name) { return name.size(); }).size();

template <class Char>
struct Name {
    std::array<Char, kLongest> characters{};
    std::size_t size = 0;

    constexpr Name() = default;
    constexpr explicit Name(std::string_view text) : size(text.size()) {
        std::ranges::transform(text, characters.begin(),
                               [](char character) { return static_cast<Char>(character); });
    }

    [[nodiscard]] constexpr std::basic_string_view<Char> view() const noexcept {
        return {characters.data(), size};
    }
};

template <class Char>
constexpr std::array<Name<Char>, kNames.size()> kNamesIn = [] {
    std::array<Name<Char>, kNames.size()> names;
    std::ranges::transform(kNames, names.begin(),
                           [](std::string_view name) { return Name<Char>(name); });
    return names;
}();

template <class Char>
constexpr Name<Char> kUnknownIn{kUnknown};

std::uint64_t asUnsigned(ElementCategory category) noexcept {
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(category));
}

} // namespace

template <class Char>
std::basic_string_view<Char> toBasicString(ElementCategory category) noexcept {
    const std::uint64_t index = asUnsigned(category);
    return index < kNames.size() ? kNamesIn<Char>[static_cast<std::size_t>(index)].view()
                                 : kUnknownIn<Char>.view();
}

template std::basic_string_view<char> toBasicString(ElementCategory) noexcept;
template std::basic_string_view<char8_t> toBasicString(ElementCategory) noexcept;
template std::basic_string_view<char16_t> toBasicString(ElementCategory) noexcept;
template std::basic_string_view<char32_t> toBasicString(ElementCategory) noexcept;
template std::basic_string_view<wchar_t> toBasicString(ElementCategory) noexcept;

std::ostream& operator<<(std::ostream& stream, ElementCategory category) {
    const std::uint64_t index = asUnsigned(category);
    if (index < kNames.size()) {
        return stream << toBasicString<char>(category);
    }
    // Written as one text, so that the stream's width holds for the whole of it.
    std::ostringstream text;
    text.flags(stream.flags());
    text.imbue(stream.getloc());
    text << kUnknown << " (" << index << ')';
    return stream << text.view();
}

} // namespace corvane::workbench::model
