#include "TestBench.hpp"

namespace corvane::tests {
namespace {

class Dated final : public kit::Element {
public:
    void describe(kit::Form& form) override { form.timeStamp("since", "Since", since); }

    std::string since;
};

class TimeStampSetting : public ::testing::Test {
protected:
    TestBench<Dated> bench;
};

TEST_F(TimeStampSetting, IsLoadedAndSavedAsItWasWritten) {
    bench.loadSettings(R"("since": "2024-05-06 07:08:09.250+02:00")");
    EXPECT_EQ(bench.object().since, "2024-05-06 07:08:09.250+02:00");
    EXPECT_EQ(bench.savedSettings(), R"({"since":"2024-05-06 07:08:09.250+02:00"})");
    EXPECT_THAT(bench.setting("since"), IsOk());
}

TEST_F(TimeStampSetting, MayBeEmpty) {
    EXPECT_THAT(bench.setting("since"), IsOk());
    bench.setting("since").set("2024");
    bench.setting("since").set("");
    EXPECT_THAT(bench.setting("since"), HasText(""));
    EXPECT_THAT(bench.setting("since"), IsOk());
}

TEST_F(TimeStampSetting, IsAnErrorOfThePropertyWhenAFileHoldsAnythingElse) {
    bench.loadSettings(R"("since": "last year")");
    EXPECT_THAT(bench.setting("since"), HasText("last year"));
    EXPECT_THAT(bench.setting("since"),
                HasError("The time stamp must read like “2024-05-06 07:08:09Z”."));
    EXPECT_EQ(bench.savedSettings(), R"({"since":"last year"})");
}

TEST_F(TimeStampSetting, IsRefusedWithItsPlaceWhenItIsNoText) {
    EXPECT_THAT(bench.problemsOf(R"("since": 2024)"),
                ElementsAre("configuration.json:2:10: error: expected a string, found a number"));
}

TEST_F(TimeStampSetting, IsCompletedWhenItIsTyped) {
    bench.setting("since").set("2024-05-06 07:08:09");
    EXPECT_THAT(bench.setting("since"), HasText("2024-05-06 07:08:09Z"));
    EXPECT_THAT(bench.setting("since"), IsOk());
}

TEST_F(TimeStampSetting, HasTheEditorForTimeStamps) {
    EXPECT_EQ(bench.setting("since").property().editor, skill::EditableProperty::Editor::TimeStamp);
}

} // namespace
} // namespace corvane::tests
