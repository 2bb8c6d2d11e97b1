#include "TestBench.hpp"
#include <corvane/workbench/kit/translate.hpp>

namespace corvane::tests {
namespace {

class Lit final : public kit::Element {
public:
    void describe(kit::Form& form) override {
        const auto dimmed = form.flag("dimmable", "Dimmable", dimmable);
        form.number("brightness", "Brightness", brightness)
            .rule([](double value) { return value > 0; }, "The brightness must be positive.")
            .visibleIf([this] { return dimmable; }, dimmed);
        form.derived("percent", "Percent", [this] { return kit::valueText(brightness * 100); })
            .visibleIf([this] { return dimmable; }, dimmable)
            .follows(brightness);
    }

    bool dimmable = false;
    double brightness = 0;
};

class Visibility : public ::testing::Test {
protected:
    TestBench<Lit> bench;
};

TEST_F(Visibility, FollowsTheConditionByFieldOrHandle) {
    EXPECT_THAT(bench.setting("brightness"), IsHidden());
    EXPECT_THAT(bench.setting("percent"), IsHidden());
    bench.setting("dimmable").set("true");
    EXPECT_THAT(bench.setting("brightness"), IsVisible());
    EXPECT_THAT(bench.setting("percent"), IsVisible());
}

TEST_F(Visibility, DecidesWhetherAnErrorCounts) {
    EXPECT_THAT(bench, HasErrors(0));
    EXPECT_THAT(bench.setting("brightness"), IsOk());
    bench.setting("dimmable").set("true");
    EXPECT_THAT(bench.setting("brightness"), HasError("The brightness must be positive."));
    EXPECT_THAT(bench, HasErrors(1));
}

TEST_F(Visibility, IsAnnouncedBehindTheValueThatItDependsOn) {
    bench.setting("dimmable").set("true");
    EXPECT_THAT(bench, Announced(R"(
        value       E.dimmable: true
        state       E.brightness: error: The brightness must be positive.
        visibility  E.brightness: visible
        visibility  E.percent: visible
        errors      E: 1
        errors      (root): 1)"));
}

} // namespace
} // namespace corvane::tests
