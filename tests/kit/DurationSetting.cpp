#include "TestBench.hpp"
#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/kit/seconds.hpp>

namespace corvane::tests {
namespace {

class Timed final : public kit::Element {
public:
    void describe(kit::Form& form) override {
        form.duration("delay", "Delay", delay);
        form.duration("period", "Period", period).acceptsMicroseconds();
    }

    chrono::Duration delay;
    chrono::Duration period;
};

class DurationSetting : public ::testing::Test {
protected:
    TestBench<Timed> bench;
};

TEST_F(DurationSetting, IsLoadedAndSavedInItsUnit) {
    bench.loadSettings(R"("delay": "1.5h", "period": "250ms")");
    EXPECT_EQ(kit::seconds(bench.object().delay), 5400);
    EXPECT_EQ(kit::seconds(bench.object().period), 0.25);
    EXPECT_EQ(bench.savedSettings(), R"({"delay":"1.5h","period":"250ms"})");
}

TEST_F(DurationSetting, AcceptsACountOfMicrosecondsWhereThereWasOne) {
    bench.loadSettings(R"("period": 1500000)");
    EXPECT_EQ(kit::seconds(bench.object().period), 1.5);
    EXPECT_THAT(bench.problemsOf(R"("delay": 1500000)"),
                ElementsAre("configuration.json:2:10: error: expected a string, found a number"));
}

TEST_F(DurationSetting, IsTypedWithAUnit) {
    bench.setting("delay").set("250ms");
    EXPECT_THAT(bench.setting("delay"), HasText("250ms"));
    EXPECT_THAT(bench.setting("delay"),
                Refuses("250", "“250” is not a duration; write for example “250ms” or “1.5h”."));
}

TEST_F(DurationSetting, HasTheEditorForDurations) {
    EXPECT_EQ(bench.setting("delay").property().editor, skill::EditableProperty::Editor::Duration);
}

} // namespace
} // namespace corvane::tests
