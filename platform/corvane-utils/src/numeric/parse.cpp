#include <corvane/utils/numeric/parse.hpp>

#include <charconv>
#include <system_error>

namespace corvane::utils::numeric {

namespace {

template <class Number>
[[nodiscard]] std::optional<Number> parseWhole(std::string_view text) noexcept {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end) {
        return std::nullopt;
    }
    return number;
}

} // namespace

std::optional<ParsedDouble> parseDoublePrefix(std::string_view text) noexcept {
    // What begins with a letter would be "inf" or "nan".
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    if (first == text.size() || (text[first] != '.' && (text[first] < '0' || text[first] > '9'))) {
        return std::nullopt;
    }
    double number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc()) {
        return std::nullopt;
    }
    return ParsedDouble{number, static_cast<std::size_t>(result.ptr - text.data())};
}

template <>
std::optional<std::int64_t> parse<std::int64_t>(std::string_view text) noexcept {
    return parseWhole<std::int64_t>(text);
}

template <>
std::optional<std::uint64_t> parse<std::uint64_t>(std::string_view text) noexcept {
    return parseWhole<std::uint64_t>(text);
}

template <>
std::optional<double> parse<double>(std::string_view text) noexcept {
    const auto parsed = parseDoublePrefix(text);
    if (!parsed || parsed->length != text.size()) {
        return std::nullopt;
    }
    return parsed->value;
}

} // namespace corvane::utils::numeric
