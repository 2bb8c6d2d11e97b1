#include "TestBench.hpp"

#include <cstdint>
#include <limits>

namespace corvane::tests {
namespace {

class Measured final : public kit::Element {
public:
    void describe(kit::Form& form) override {
        form.number("number", "Number", number);
        form.integer("whole", "Whole", whole);
        form.integer("octet", "Octet", octet);
        form.integer("offset", "Offset", offset);
        form.integer("big", "Big", big);
    }

    double number = 0.5;
    std::int64_t whole = -3;
    std::uint8_t octet = 7;
    std::int16_t offset = 0;
    std::uint64_t big = 0;
};

class NumberSetting : public ::testing::Test {
protected:
    TestBench<Measured> bench;
};

TEST_F(NumberSetting, IsLoadedAndSavedAsTheShortestText) {
    bench.loadSettings(R"("number": 0.1000, "whole": -9223372036854775808, "octet": 255,
                          "offset": -32768, "big": 18446744073709551615)");
    EXPECT_EQ(bench.object().number, 0.1);
    EXPECT_EQ(bench.object().whole, std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(bench.object().octet, 255);
    EXPECT_EQ(bench.object().offset, -32768);
    EXPECT_EQ(bench.object().big, std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(bench.savedSettings(),
              R"({"number":0.1,"whole":-9223372036854775808,"octet":255,"offset":-32768,)"
              R"("big":18446744073709551615})");
}

TEST_F(NumberSetting, IsRefusedWithItsPlaceWhenItIsNoNumber) {
    EXPECT_THAT(bench.problemsOf(R"("number": "1")"),
                ElementsAre("configuration.json:2:11: error: expected a number, found a string"));
    EXPECT_THAT(bench.problemsOf(R"("whole": true)"),
                ElementsAre("configuration.json:2:10: error: expected a number, found a boolean"));
}

TEST_F(NumberSetting, IsRefusedWhenItIsNotWhole) {
    EXPECT_THAT(
        bench.problemsOf(R"("whole": 1.5)"),
        ElementsAre("configuration.json:2:10: error: the number 1.5 is not a whole number"));
}

TEST_F(NumberSetting, IsRefusedWhenItDoesNotFitTheField) {
    EXPECT_THAT(
        bench.problemsOf(R"("octet": 256)"),
        ElementsAre("configuration.json:2:10: error: the number 256 is not between 0 and 255"));
    EXPECT_THAT(bench.problemsOf(R"("offset": -32769)"),
                ElementsAre("configuration.json:2:11: error: the number -32769 is not between "
                            "-32768 and 32767"));
}

TEST_F(NumberSetting, IsTypedAsADecimalNumber) {
    bench.setting("number").set("-2.5e3");
    EXPECT_THAT(bench.setting("number"), HasText("-2500"));
    EXPECT_THAT(bench.setting("number"), Announced("value       E.number: -2500"));
    EXPECT_THAT(bench.setting("number"), Refuses("a lot", "“a lot” is not a number."));
    EXPECT_THAT(bench.setting("number"), Refuses("inf", "“inf” is not a number."));
    EXPECT_THAT(bench.setting("number"), Refuses("nan", "“nan” is not a number."));
    EXPECT_THAT(bench.setting("number"), Refuses("1e999", "“1e999” is not a number."));
    EXPECT_THAT(bench.setting("number"), Refuses("", "“” is not a number."));
}

TEST_F(NumberSetting, IsTypedAsAWholeNumberWithinTheFieldsBounds) {
    bench.setting("octet").set("255");
    EXPECT_EQ(bench.object().octet, 255);
    EXPECT_THAT(bench.setting("octet"), Refuses("256", "The number must lie between 0 and 255."));
    EXPECT_THAT(bench.setting("octet"), Refuses("-1", "“-1” is not a whole number."));
    EXPECT_THAT(bench.setting("offset"),
                Refuses("-32769", "The number must lie between -32768 and 32767."));
    EXPECT_THAT(bench.setting("whole"), Refuses("1.5", "“1.5” is not a whole number."));
}

TEST_F(NumberSetting, AnnouncesNothingWhenATextIsRefused) {
    static_cast<void>(bench.setting("number").trySet("a lot"));
    EXPECT_THAT(bench, Announced(""));
}

TEST_F(NumberSetting, HasTheEditorForNumbers) {
    EXPECT_EQ(bench.setting("number").property().editor, skill::EditableProperty::Editor::Number);
    EXPECT_EQ(bench.setting("octet").property().editor, skill::EditableProperty::Editor::Number);
}

} // namespace
} // namespace corvane::tests
