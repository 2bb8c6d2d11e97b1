#include <corvane/workbench/chrono/Duration.hpp>

#include <corvane/utils/json/decoder/AllowLegacyMicrosecondsTag.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/decoder/detail/WrappedException.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/numeric/format.hpp>
#include <corvane/utils/numeric/parse.hpp>
#include <corvane/utils/string/transcode.hpp>

#include <algorithm>
#include <array>
#include <format>

namespace corvane::workbench::chrono {

namespace decoder = utils::json::decoder;
namespace encoder = utils::json::encoder;

namespace {

[[noreturn]] void throwNoDuration(const decoder::Value& source) {
    constexpr const char* message = "JSON string does not represent a valid time duration";
    if (const decoder::Location location = source.location()) {
        throw decoder::detail::WrappedException<std::runtime_error>(location,
                                                                    std::runtime_error(message));
    }
    throw std::logic_error(message);
}

Duration fromMicroseconds(std::int64_t count) noexcept {
    struct Divisor {
        std::int64_t microseconds;
        Duration::Units units;
    };
    constexpr std::array<Divisor, 4> divisors{{
        {3'600'000'000, Duration::Units::Hours},
        {60'000'000, Duration::Units::Minutes},
        {1'000'000, Duration::Units::Seconds},
        {1'000, Duration::Units::Milliseconds},
    }};
    for (const auto& [microseconds, units] : divisors) {
        if (count % microseconds == 0) {
            return {static_cast<double>(count / microseconds), units};
        }
    }
    return {static_cast<double>(count), Duration::Units::Microseconds};
}

} // namespace

std::string_view Duration::encodeUnits(Units units) noexcept {
    switch (units) {
    case Units::Nanoseconds:
        return "ns";
    case Units::Microseconds:
        return "\xc2\xb5s";
    case Units::Milliseconds:
        return "ms";
    case Units::Minutes:
        return "m";
    case Units::Hours:
        return "h";
    case Units::Seconds:
        break;
    }
    return "s";
}

std::optional<Duration::Units> Duration::decodeUnits(std::string_view text) noexcept {
    if (text == "us") {
        return Units::Microseconds;
    }
    for (const Units units : {Units::Nanoseconds, Units::Microseconds, Units::Milliseconds,
                              Units::Seconds, Units::Minutes, Units::Hours}) {
        if (text == encodeUnits(units)) {
            return units;
        }
    }
    return std::nullopt;
}

std::optional<Duration> Duration::parse(std::string_view text) noexcept {
    const std::optional<utils::numeric::ParsedDouble> number =
        utils::numeric::parseDoublePrefix(text);
    if (!number) {
        return std::nullopt;
    }
    std::string_view rest = text.substr(number->length);
    if (rest.empty() && number->value == 0.0) {
        return Duration();
    }
    rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
    const std::optional<Units> units = decodeUnits(rest);
    if (!units) {
        return std::nullopt;
    }
    return Duration(number->value, *units);
}

std::string Duration::toString() const {
    if (value_ == 0.0) {
        return "0";
    }
    return std::format("{}{}", utils::numeric::format(value_).view(), encodeUnits(units_));
}

std::wstring Duration::toDisplayText() const {
    // "m" would be read as metres.
    const std::string_view units = units_ == Units::Minutes ? "min" : encodeUnits(units_);
    const double value = value_ == 0.0 ? 0.0 : value_;
    return utils::string::toWide(std::format("{} {}", utils::numeric::format(value).view(), units));
}

Duration Duration::load(decoder::Value& source) {
    const std::optional<Duration> duration = parse(source.asString().view());
    if (!duration) {
        throwNoDuration(source);
    }
    return *duration;
}

Duration Duration::load(decoder::Value& source, decoder::AllowLegacyMicrosecondsTag) {
    return source.isNumber() ? fromMicroseconds(source.asInt64()) : load(source);
}

void Duration::save(encoder::Value& target) const {
    target.writeString(toString());
}

void Duration::saveTo(encoder::Array& target) const {
    encoder::Value element = target.addElement();
    save(element);
}

void Duration::saveTo(encoder::Object& target, std::string_view name) const {
    encoder::Value member = target.addMember(name);
    save(member);
}

} // namespace corvane::workbench::chrono
