#include <corvane/utils/numeric/format.hpp>

#include <charconv>
#include <cstddef>

namespace corvane::utils::numeric {

namespace {

template <std::size_t Capacity, class Number>
[[nodiscard]] string::BasicStaticString<char, Capacity> formatted(Number number) {
    string::BasicStaticString<char, Capacity> text;
    text.overwrite([number](char* begin, char* end) {
        // The capacity is that of the longest number, so the conversion cannot fail.
        return std::to_chars(begin, end, number).ptr;
    });
    return text;
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
