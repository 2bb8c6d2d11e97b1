#pragma once

#include <corvane/workbench/export.hpp>

#include <chrono>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numeric>
#include <optional>
#include <ratio>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>

namespace corvane::utils::json::decoder {
struct AllowLegacyMicrosecondsTag;
class Value;
} // namespace corvane::utils::json::decoder
namespace corvane::utils::json::encoder {
class Array;
class Object;
class Value;
} // namespace corvane::utils::json::encoder

namespace corvane::workbench::chrono {

/// A time span in the unit in which the user entered it, so that "250ms" is shown and written back
/// as "250ms". A value type of two fields.
class CORVANE_WORKBENCH_EXPORT Duration {
public:
    /// In texts "ns", "µs" (also read as "us"), "ms", "s", "m", "h".
    enum class Units : std::int32_t {
        Nanoseconds = 0,
        Microseconds = 1,
        Milliseconds = 2,
        Seconds = 3,
        Minutes = 4,
        Hours = 5,
    };

    /// 0 seconds.
    constexpr Duration() noexcept = default;
    /// Any number is kept as it is.
    constexpr Duration(double value, Units units) noexcept : value_(value), units_(units) {}

    /// The same span in the unit of the given type if there is one, else in the largest unit of
    /// which that type's tick is a whole multiple (days become hours), else in nanoseconds. Counts
    /// that a double cannot hold exactly are rounded to the nearest.
    template <class Rep, class Period>
    [[nodiscard]] static constexpr Duration from(std::chrono::duration<Rep, Period> span) noexcept;

    /// The span in the given type of the standard library. Whole-number types get the nearest
    /// tick, half a tick rounds away from zero. Throws std::out_of_range if the type cannot hold
    /// the span, or if the value is no number.
    template <class Span>
    [[nodiscard]] Span to() const;

    /// The pair as it was given.
    /// @{
    [[nodiscard]] constexpr double value() const noexcept { return value_; }
    [[nodiscard]] constexpr Units units() const noexcept { return units_; }
    /// @}

    /// Compares the two fields: 1000 milliseconds are not 1 second. Use to() to compare lengths.
    friend constexpr bool operator==(const Duration&, const Duration&) noexcept = default;

    /// Reads a number followed by its unit, spaces and tabs between them allowed, UTF-8; a zero
    /// may stand alone and is 0 seconds. Nothing if the text is anything else.
    [[nodiscard]] static std::optional<Duration> parse(std::string_view text) noexcept;
    /// The text that is written to files, UTF-8: "250ms"; "0" for a value of zero.
    [[nodiscard]] std::string toString() const;
    /// The span as shown to people, UTF-16: "250 ms", "5 min"; a value of zero keeps its unit.
    [[nodiscard]] std::wstring toDisplayText() const;

    /// Reads a JSON string, in which parse() must find a duration. Throws the decoder's exceptions.
    [[nodiscard]] static Duration load(utils::json::decoder::Value& source);
    /// The same, but a whole JSON number is read as microseconds, in the largest unit from
    /// milliseconds to hours of which it is a multiple.
    [[nodiscard]] static Duration load(utils::json::decoder::Value& source,
                                       utils::json::decoder::AllowLegacyMicrosecondsTag);

    /// Writes a JSON string.
    void save(utils::json::encoder::Value& target) const;
    /// Adds an element or a member that holds the duration.
    /// @{
    void saveTo(utils::json::encoder::Array& target) const;
    void saveTo(utils::json::encoder::Object& target, std::string_view name) const;
    /// @}

private:
    /// A unit, or a tick of the standard library, as a fraction of a second.
    struct Ratio {
        std::intmax_t numerator;
        std::intmax_t denominator;
    };

    [[nodiscard]] static std::string_view encodeUnits(Units units) noexcept;
    [[nodiscard]] static std::optional<Units> decodeUnits(std::string_view text) noexcept;

    [[nodiscard]] static constexpr Ratio secondsPer(Units units) noexcept;
    template <class Period, class Tick>
    [[nodiscard]] static constexpr bool isMultiple() noexcept;
    template <class Period>
    [[nodiscard]] static constexpr Units unitsFor() noexcept;

    double value_ = 0.0;
    Units units_ = Units::Seconds;
};

constexpr Duration::Ratio Duration::secondsPer(Units units) noexcept {
    switch (units) {
    case Units::Nanoseconds:
        return {1, 1'000'000'000};
    case Units::Microseconds:
        return {1, 1'000'000};
    case Units::Milliseconds:
        return {1, 1'000};
    case Units::Minutes:
        return {60, 1};
    case Units::Hours:
        return {3'600, 1};
    case Units::Seconds:
        break;
    }
    return {1, 1};
}

template <class Period, class Tick>
constexpr bool Duration::isMultiple() noexcept {
    return std::ratio_divide<Period, Tick>::den == 1;
}

template <class Period>
constexpr Duration::Units Duration::unitsFor() noexcept {
    if constexpr (isMultiple<Period, std::ratio<3'600>>()) {
        return Units::Hours;
    } else if constexpr (isMultiple<Period, std::ratio<60>>()) {
        return Units::Minutes;
    } else if constexpr (isMultiple<Period, std::ratio<1>>()) {
        return Units::Seconds;
    } else if constexpr (isMultiple<Period, std::milli>()) {
        return Units::Milliseconds;
    } else if constexpr (isMultiple<Period, std::micro>()) {
        return Units::Microseconds;
    } else {
        return Units::Nanoseconds;
    }
}

template <class Rep, class Period>
constexpr Duration Duration::from(std::chrono::duration<Rep, Period> span) noexcept {
    constexpr Units units = unitsFor<Period>();
    constexpr Ratio unit = secondsPer(units);
    // Ticks in one unit would not be whole: ask for units in one tick. Either part is exact.
    constexpr Ratio perTick{
        std::ratio_multiply<Period, std::ratio<unit.denominator, unit.numerator>>::num,
        std::ratio_multiply<Period, std::ratio<unit.denominator, unit.numerator>>::den};
    const double count = static_cast<double>(span.count());
    return {count * static_cast<double>(perTick.numerator) /
                static_cast<double>(perTick.denominator),
            units};
}

template <class Span>
Span Duration::to() const {
    using Rep = typename Span::rep;
    using Period = typename Span::period;
    static_assert(std::is_arithmetic_v<Rep>);

    // Reduce the two ratios crosswise before multiplying: exact for every usual type.
    const Ratio unit = secondsPer(units_);
    const std::intmax_t high = std::gcd(unit.numerator, Period::num);
    const std::intmax_t low = std::gcd(unit.denominator, Period::den);
    const double multiplier =
        static_cast<double>(unit.numerator / high) * static_cast<double>(Period::den / low);
    const double divisor =
        static_cast<double>(unit.denominator / low) * static_cast<double>(Period::num / high);
    const double ticks = value_ * multiplier / divisor;
    if constexpr (std::is_floating_point_v<Rep>) {
        if (!(std::abs(ticks) <= std::numeric_limits<Rep>::max())) {
            throw std::out_of_range("the time duration does not fit the type");
        }
        return Span(static_cast<Rep>(ticks));
    } else {
        // Both limits are powers of two or zero, so they are exact as doubles.
        constexpr double lowest = static_cast<double>(std::numeric_limits<Rep>::min());
        const double limit = std::ldexp(1.0, std::numeric_limits<Rep>::digits);
        const double rounded = std::round(ticks);
        if (!(rounded >= lowest && rounded < limit)) {
            throw std::out_of_range("the time duration does not fit the type");
        }
        return Span(static_cast<Rep>(rounded));
    }
}

} // namespace corvane::workbench::chrono
