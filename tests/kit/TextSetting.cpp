#include "TestBench.hpp"

namespace corvane::tests {
namespace {

class Labelled final : public kit::Element {
public:
    void describe(kit::Form& form) override { form.text("label", "Label", label); }

    std::string label = "as made";
};

class TextSetting : public ::testing::Test {
protected:
    TestBench<Labelled> bench;
};

TEST_F(TextSetting, IsLoadedAndSavedAsItStands) {
    bench.loadSettings(R"("label": " Öl\n\"🛢\" ")");
    EXPECT_EQ(bench.object().label, " Öl\n\"🛢\" ");
    EXPECT_EQ(bench.savedSettings(), R"({"label":" Öl\n\"🛢\" "})");
}

TEST_F(TextSetting, IsRefusedWithItsPlaceWhenItIsNoText) {
    EXPECT_THAT(bench.problemsOf(R"("label": 5)"),
                ElementsAre("configuration.json:2:10: error: expected a string, found a number"));
}

TEST_F(TextSetting, TakesWhateverIsTyped) {
    bench.setting("label").set("Öl 🛢");
    EXPECT_EQ(bench.object().label, "Öl 🛢");
    EXPECT_THAT(bench.setting("label"), HasText("Öl 🛢"));
    EXPECT_THAT(bench.setting("label"), Announced("value       E.label: Öl 🛢"));
    bench.setting("label").set("");
    EXPECT_EQ(bench.object().label, "");
}

TEST_F(TextSetting, KeepsTheValueThatTheFieldStartsWith) {
    EXPECT_EQ(bench.object().label, "as made");
    bench.loadSettings(R"("ACL": [])");
    EXPECT_EQ(bench.object().label, "as made");
}

TEST_F(TextSetting, HasTheEditorForTexts) {
    EXPECT_EQ(bench.setting("label").property().editor, skill::EditableProperty::Editor::Text);
    EXPECT_EQ(bench.setting("label").property().displayName, L"Label");
}

} // namespace
} // namespace corvane::tests
