#include "TestBench.hpp"

#include <array>
#include <cstdint>
#include <functional>
#include <stdexcept>

namespace corvane::tests {
namespace {

enum class Drive : std::uint8_t { Fixed, Variable, Stepped };

class Driven final : public kit::Element {
public:
    void describe(kit::Form& form) override {
        form.choice("drive", "Drive", drive, {"fixed", "variable", "stepped"});
        form.choice("backup", "Backup", backup, std::span<const kit::Text>(kTexts));
    }

    static constexpr std::array<kit::Text, 2> kTexts{"none", "fixed"};

    Drive drive = Drive::Fixed;
    Drive backup = Drive::Fixed;
};

class ChoiceSetting : public ::testing::Test {
protected:
    TestBench<Driven> bench;
};

TEST_F(ChoiceSetting, IsLoadedAndSavedAsItsText) {
    bench.loadSettings(R"("drive": "stepped", "backup": "fixed")");
    EXPECT_EQ(bench.object().drive, Drive::Stepped);
    EXPECT_EQ(bench.object().backup, Drive::Variable);
    EXPECT_EQ(bench.savedSettings(), R"({"drive":"stepped","backup":"fixed"})");
}

TEST_F(ChoiceSetting, IsLoadedInAnotherOrderToo) {
    bench.loadSettings(R"("backup": "fixed", "drive": "variable")");
    EXPECT_EQ(bench.object().drive, Drive::Variable);
    EXPECT_EQ(bench.object().backup, Drive::Variable);
}

TEST_F(ChoiceSetting, IsRefusedWithItsPlaceAndTheChoices) {
    EXPECT_THAT(bench.problemsOf(R"("drive": "Fixed")"),
                ElementsAre("configuration.json:2:10: error: \"Fixed\" is not one of \"fixed\", "
                            "\"variable\", \"stepped\""));
    EXPECT_THAT(bench.problemsOf(R"("drive": 0)"),
                ElementsAre("configuration.json:2:10: error: expected a string, found a number"));
}

TEST_F(ChoiceSetting, IsTypedAsOneOfItsTexts) {
    EXPECT_THAT(bench.setting("drive").choices(), ElementsAre("fixed", "variable", "stepped"));
    bench.setting("drive").set("stepped");
    EXPECT_EQ(bench.object().drive, Drive::Stepped);
    EXPECT_THAT(bench.setting("drive"), HasText("stepped"));
    EXPECT_THAT(bench.setting("drive"), Refuses("none", "“none” is not one of the choices."));
}

TEST_F(ChoiceSetting, HasTheEditorForChoices) {
    EXPECT_EQ(bench.setting("drive").property().editor, skill::EditableProperty::Editor::Choice);
}

TEST_F(ChoiceSetting, CanBeEditedAfterTheDescriptionHasEnded) {
    const skill::EditableProperty kept = bench.setting("drive").property();
    EXPECT_TRUE(kept.setText(L"variable"));
    EXPECT_EQ(kept.text(), L"variable");
}

TEST_F(ChoiceSetting, ThrowsWhenTheFieldHasAValueWithoutAText) {
    bench.object().backup = Drive::Stepped;
    EXPECT_THROW(static_cast<void>(bench.setting("backup").property().text()), std::out_of_range);
}

} // namespace
} // namespace corvane::tests
