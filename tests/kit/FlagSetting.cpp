#include "TestBench.hpp"

namespace corvane::tests {
namespace {

class Switched final : public kit::Element {
public:
    void describe(kit::Form& form) override { form.flag("on", "On", on); }

    bool on = false;
};

class FlagSetting : public ::testing::Test {
protected:
    TestBench<Switched> bench;
};

TEST_F(FlagSetting, IsLoadedAndSaved) {
    bench.loadSettings(R"("on": true)");
    EXPECT_TRUE(bench.object().on);
    EXPECT_EQ(bench.savedSettings(), R"({"on":true})");
}

TEST_F(FlagSetting, IsRefusedWithItsPlaceWhenItIsNeitherTrueNorFalse) {
    EXPECT_THAT(bench.problemsOf(R"("on": 1)"),
                ElementsAre("configuration.json:2:7: error: expected a boolean, found a "
                            "number"));
}

TEST_F(FlagSetting, IsTypedAsTrueOrFalse) {
    bench.setting("on").set("true");
    EXPECT_TRUE(bench.object().on);
    EXPECT_THAT(bench.setting("on"), HasText("true"));
    bench.setting("on").set("false");
    EXPECT_FALSE(bench.object().on);
    EXPECT_THAT(bench.setting("on"), Refuses("yes", "“yes” is neither “true” nor “false”."));
}

TEST_F(FlagSetting, HasTheEditorForFlags) {
    EXPECT_EQ(bench.setting("on").property().editor, skill::EditableProperty::Editor::Flag);
}

} // namespace
} // namespace corvane::tests
