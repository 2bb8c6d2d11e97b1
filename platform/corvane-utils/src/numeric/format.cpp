#include <corvane/utils/numeric/format.hpp>

#include <array>
#include <charconv>
#include <string_view>

namespace corvane::utils::numeric {

namespace {

template <std::size_t Capacity, class Number>
[[nodiscard]] string::BasicStaticString<char, Capacity> formatted(Number number) {
    std::array<char, Capacity> text;
    // The capacity is that of the longest number, so the conversion cannot fail.
    const auto result = std::to_chars(text.data(), text.data() + text.size(), number);
    return string::BasicStaticString<char, Capacity>(
        std::string_view(text.data(), static_cast<std::size_t>(result.ptr - text.data())));
}

} // namespace

string::BasicStaticString<char, 20> format(std::int64_t number) {
    return formatted<20>(number);
}

string::BasicStaticString<char, 20> format(std::uint64_t number) {
    return formatted<20>(number);
}

string::BasicStaticString<char, 24> format(double number) {
    return formatted<24>(number);
}

} // namespace corvane::utils::numeric
