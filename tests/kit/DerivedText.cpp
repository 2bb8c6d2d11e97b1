#include "TestBench.hpp"
#include <corvane/workbench/kit/translate.hpp>

namespace corvane::tests {
namespace {

class Texts final : public kit::Element {
public:
    void describe(kit::Form& form) override {
        form.number("power", "Power", power).unit("kW").toolTip("At the shaft.").readOnly();
        form.derived("energy", "Energy", [this] { return kit::valueText(power * 24); })
            .unit("kWh")
            .toolTip("Per day.")
            .follows(power);
        form.number("shown", "Shown", shown).follows(power);
    }
    using kit::Element::changed;

    double power = 2;
    double shown = 1;
};

TEST(Presentation, HasTheUnitBehindTheDisplayNameAndASentence) {
    TestBench<Texts> bench;
    const skill::EditableProperty power = bench.setting("power").property();
    EXPECT_EQ(power.name, "power");
    EXPECT_EQ(power.displayName, L"Power (kW)");
    EXPECT_EQ(power.toolTip, L"At the shaft.");
    const skill::EditableProperty energy = bench.setting("energy").property();
    EXPECT_EQ(energy.displayName, L"Energy (kWh)");
    EXPECT_EQ(energy.toolTip, L"Per day.");
    EXPECT_EQ(bench.setting("shown").property().toolTip, L"");
}

TEST(Presentation, OfAReadOnlySettingOffersNoEditing) {
    TestBench<Texts> bench;
    EXPECT_TRUE(bench.setting("power").readOnly());
    EXPECT_THAT(bench.setting("power"), HasText("2"));
    EXPECT_FALSE(bench.setting("shown").readOnly());
}

TEST(DerivedText, CannotBeEditedAndIsNeitherLoadedNorSaved) {
    TestBench<Texts> bench;
    EXPECT_TRUE(bench.setting("energy").readOnly());
    EXPECT_EQ(bench.savedSettings(), R"({"power":2,"shown":1})");
    EXPECT_THAT(bench.problemsOf(R"("energy": "48")"),
                ElementsAre("configuration.json:2:1: error: unknown parameter \"energy\""));
}

TEST(DerivedText, IsPublishedWithWhatItFollows) {
    TestBench<Texts> bench;
    Texts& object = bench.object();
    std::vector<std::string> heard;
    const auto power =
        object.property(object.power).subscribe({.value = [&] { heard.emplace_back("power"); }});
    const auto energy = bench.setting("energy").property().property.subscribe(
        {.value = [&] { heard.emplace_back("energy"); }});
    const auto shown =
        object.property(object.shown).subscribe({.value = [&] { heard.emplace_back("shown"); }});
    object.power = 3;
    object.changed(object.power);
    EXPECT_THAT(heard, ElementsAre("power", "energy", "shown"));
    EXPECT_THAT(bench.setting("energy"), HasText("72"));
}

} // namespace
} // namespace corvane::tests
