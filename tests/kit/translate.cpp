#include <corvane/workbench/kit/translate.hpp>

#include <corvane/utils/core/Uuid.hpp>
#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/kit/State.hpp>
#include <corvane/workbench/kit/Text.hpp>
#include <corvane/workbench/kit/uuid.hpp>

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>

namespace corvane::tests {
namespace {

using namespace corvane::workbench;
using namespace corvane::workbench::kit::literals;

TEST(ValueText, OfANumberIsTheShortestThatStandsForIt) {
    EXPECT_EQ(kit::valueText(0.1), L"0.1");
    EXPECT_EQ(kit::valueText(50.0), L"50");
    EXPECT_EQ(kit::valueText(std::int8_t{-5}), L"-5");
    EXPECT_EQ(kit::valueText(std::numeric_limits<std::int64_t>::min()), L"-9223372036854775808");
    EXPECT_EQ(kit::valueText(std::numeric_limits<std::uint64_t>::max()), L"18446744073709551615");
    EXPECT_EQ(kit::valueText(std::size_t{3}), L"3");
}

TEST(ValueText, OfOtherValuesIsWhatTheUserReads) {
    EXPECT_EQ(kit::valueText(chrono::Duration(250, chrono::Duration::Units::Milliseconds)),
              L"250ms");
    EXPECT_EQ(kit::valueText("01234567-89ab-cdef-0123-456789abcdef"_uuid),
              L"01234567-89ab-cdef-0123-456789abcdef");
    EXPECT_EQ(kit::valueText(std::string_view("\xC3\xBC")), std::wstring({0x00FC}));
    EXPECT_EQ(kit::valueText(std::wstring_view(L"wide")), L"wide");
}

TEST(TextForTheUser, HasTheValuesInTheirPlaces) {
    EXPECT_EQ(kit::text("Ready."), L"Ready.");
    EXPECT_EQ(kit::text("{} of {}", 1.5, "all"), L"1.5 of all");
    EXPECT_EQ(kit::text("{}{}", 1, std::wstring(L"{}")), L"1{}") << "values have no places";
}

TEST(TextForTheUser, HasBracesWhereTheyAreDoubled) {
    EXPECT_EQ(kit::text("{{{}}} {{}}", 5), L"{5} {}");
}

TEST(ErrorForTheUser, IsAStateThatIsNotSuccess) {
    const kit::State plain = kit::error("Wrong.");
    EXPECT_EQ(plain.error(), L"Wrong.");
    const kit::State filled = kit::error("{} is wrong.", 5);
    EXPECT_EQ(filled.error(), L"5 is wrong.");
}

TEST(TextLiteral, IsEmptyUnlessItIsGiven) {
    EXPECT_TRUE(kit::Text().empty());
    EXPECT_STREQ(kit::Text().data(), "");
    constexpr kit::Text kSpeed = "speed";
    static_assert(!kSpeed.empty());
    EXPECT_EQ(std::string_view(kSpeed), "speed");
    EXPECT_STREQ(kSpeed.data(), "speed");
}

/// A literal that can be a template argument.
struct Pattern {
    consteval Pattern(const char* literal) { // NOLINT(google-explicit-constructor): a literal
        std::string_view rest = literal;
        for (std::size_t index = 0; index < rest.size(); ++index) {
            text[index] = rest[index];
        }
    }
    std::array<char, 16> text{};
};

/// Whether a text with these places compiles for Count values.
template <Pattern P, std::size_t Count>
concept Formats = requires {
    typename std::bool_constant<(static_cast<void>(kit::Format<Count>(P.text.data())), true)>;
};

static_assert(Formats<"", 0>);
static_assert(Formats<"{} of {}", 2>);
static_assert(!Formats<"{} of {}", 1>);
static_assert(!Formats<"{} of {}", 3>);
static_assert(Formats<"{{}}", 0>);
static_assert(!Formats<"{", 0>);
static_assert(!Formats<"}", 0>);
static_assert(!Formats<"{0}", 1>);

} // namespace
} // namespace corvane::tests
