#include <corvane/workbench/model/ElementCategory.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <iomanip>
#include <locale>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using corvane::workbench::model::ElementCategory;
using corvane::workbench::model::toBasicString;
using Categories = corvane::utils::core::Flags<ElementCategory>;

static_assert(std::is_same_v<std::underlying_type_t<ElementCategory>, std::int32_t>);

const std::vector<std::pair<ElementCategory, std::string_view>>& categories() {
    static const std::vector<std::pair<ElementCategory, std::string_view>> table = {
        {ElementCategory::RootElement, "root element"},
        {ElementCategory::ElementGroup, "element group"},
        {ElementCategory::DataPoint, "data point"},
        {ElementCategory::Timer, "timer"},
        {ElementCategory::ExecutionTrack, "execution track"},
        {ElementCategory::ExecutionPipeline, "execution pipeline"},
        {ElementCategory::Device, "device"},
        {ElementCategory::SubDevice, "sub device"},
        {ElementCategory::DeviceGroup, "device group"},
        {ElementCategory::DataPointGroup, "data point group"},
        {ElementCategory::Transaction, "transaction"},
        {ElementCategory::Microservice, "microservice"},
        {ElementCategory::AI, "AI"},
        {ElementCategory::DataStorage, "data storage"},
        {ElementCategory::ExternalInterface, "external interface"},
        {ElementCategory::SpecialPurpose, "special purpose"},
        {ElementCategory::CustomElement, "custom element"},
    };
    return table;
}

std::string written(ElementCategory category) {
    std::ostringstream stream;
    stream << category;
    return stream.str();
}

template <class Char>
class CategoryNames : public ::testing::Test {};
using CharacterTypes = ::testing::Types<char, char8_t, char16_t, char32_t, wchar_t>;
TYPED_TEST_SUITE(CategoryNames, CharacterTypes);

TYPED_TEST(CategoryNames, AreTheSameTextsInEveryCharacterType) {
    for (const auto& [category, text] : categories()) {
        const std::basic_string<TypeParam> expected(text.begin(), text.end());
        EXPECT_TRUE(toBasicString<TypeParam>(category) == expected) << text;
    }
}

TYPED_TEST(CategoryNames, AreUnknownForAValueThatIsNoEnumerator) {
    const std::string_view text = "unknown";
    const std::basic_string<TypeParam> expected(text.begin(), text.end());
    for (const int value : {17, 18, 2147483647, -1, -17, -2147483647 - 1}) {
        EXPECT_TRUE(toBasicString<TypeParam>(ElementCategory(value)) == expected) << value;
    }
}

TEST(ElementCategory, TheEnumeratorsAreNumberedInTheirOrder) {
    std::int32_t number = 0;
    for (const auto& [category, text] : categories()) {
        EXPECT_EQ(static_cast<std::int32_t>(category), number++) << text;
    }
    EXPECT_EQ(number, 17);
}

TEST(ElementCategory, SixteenIsTheWideTextCustomElement) {
    EXPECT_EQ(toBasicString<wchar_t>(ElementCategory(16)), L"custom element");
}

TEST(ElementCategory, SeventeenAndMinusOneAreUnknown) {
    EXPECT_EQ(toBasicString<char>(ElementCategory(17)), "unknown");
    EXPECT_EQ(toBasicString<char>(ElementCategory(-1)), "unknown");
}

TEST(ElementCategory, TheTextOfACategoryIsTheSameStaticTextEachTime) {
    EXPECT_EQ(toBasicString<char16_t>(ElementCategory::Timer).data(),
              toBasicString<char16_t>(ElementCategory::Timer).data());
}

TEST(ElementCategory, StreamingWritesTheText) {
    for (const auto& [category, text] : categories()) {
        EXPECT_EQ(written(category), text);
    }
    EXPECT_EQ(written(ElementCategory(12)), "AI");
}

TEST(ElementCategory, StreamingAValueThatIsNoEnumeratorWritesItsNumber) {
    EXPECT_EQ(written(ElementCategory(17)), "unknown (17)");
    EXPECT_EQ(written(ElementCategory(2147483647)), "unknown (2147483647)");
}

TEST(ElementCategory, StreamingANegativeValueWritesItAsAnUnsignedNumber) {
    EXPECT_EQ(written(ElementCategory(-1)), "unknown (18446744073709551615)");
    EXPECT_EQ(written(ElementCategory(-2147483647 - 1)), "unknown (18446744071562067968)");
}

TEST(ElementCategory, TheFormattingFlagsOfTheStreamApplyToTheNumber) {
    std::ostringstream stream;
    stream << std::hex << std::showbase << std::uppercase << ElementCategory(-1);
    EXPECT_EQ(stream.str(), "unknown (0XFFFFFFFFFFFFFFFF)");
}

TEST(ElementCategory, TheWidthOfTheStreamHoldsForTheWholeText) {
    std::ostringstream stream;
    stream << std::setw(15) << std::setfill('.') << ElementCategory(17) << '|' << std::left
           << std::setw(15) << ElementCategory(17) << '|' << std::setw(6) << ElementCategory::AI
           << '|' << ElementCategory(17);
    EXPECT_EQ(stream.str(), "...unknown (17)|unknown (17)...|AI....|unknown (17)");
}

TEST(ElementCategory, TheLanguageOfTheStreamAppliesToTheNumber) {
    struct Grouping final : std::numpunct<char> {
        char do_thousands_sep() const override { return '\''; }
        std::string do_grouping() const override { return "\3"; }
    };
    std::ostringstream stream;
    stream.imbue(std::locale(std::locale::classic(), new Grouping));
    stream << ElementCategory(12345);
    EXPECT_EQ(stream.str(), "unknown (12'345)");
}

TEST(ElementCategory, StreamingReturnsTheStream) {
    std::ostringstream stream;
    EXPECT_EQ(&(stream << ElementCategory::Timer), &stream);
}

TEST(ElementCategory, ASetOfCategoriesHasOneBitForEachEnumerator) {
    for (const auto& [category, text] : categories()) {
        EXPECT_EQ(Categories(category).bits(), 1u << static_cast<std::uint32_t>(category)) << text;
        EXPECT_TRUE(Categories(category).test(category)) << text;
    }
}

TEST(ElementCategory, TestingASetForAValueThatIsNoEnumeratorThrows) {
    const Categories all = Categories::fromBits(0xFFFFFFFF);
    for (const int value : {17, 31, 32, -1}) {
        try {
            static_cast<void>(all.test(ElementCategory(value)));
            ADD_FAILURE() << value;
        } catch (const std::out_of_range& error) {
            EXPECT_STREQ(error.what(), "invalid bitset position");
        }
    }
}

} // namespace
