#include "TestBench.hpp"
#include <corvane/workbench/kit/translate.hpp>

#include <cstdint>

namespace corvane::tests {
namespace {

class Ruled final : public kit::Element {
public:
    void describe(kit::Form& form) override {
        form.number("low", "Low", low);
        form.number("high", "High", high)
            .rule([](double value) { return value < 100; }, "High must be less than 100.")
            .rule([this] { return high > low; }, "High must be more than low.", low)
            .rule([this] { return evenState(); });
        form.integer("count", "Count", count).range(2, 24);
        form.integer("wide", "Wide", wide).range(1, 18'000'000'000'000'000'000U);
        form.number("share", "Share", share).range(-0.5, 0.5, "The share must be small.");
        form.text("name2", "Name", name2).required("Name it.");
        form.text("other", "Other", other)
            .rule([](const std::string& text) { return text.size() != 1; }, "One is too few.")
            .required();
    }
    kit::State evenState() {
        if (static_cast<int>(high) % 2 == 0) {
            return {};
        }
        return kit::error("{} is odd.", high);
    }

    double low = 0;
    double high = 10;
    int count = 2;
    std::uint64_t wide = 1;
    double share = 0;
    std::string name2 = "N";
    std::string other = "other";
};

class Rules : public ::testing::Test {
protected:
    TestBench<Ruled> bench;
};

TEST_F(Rules, AreLookedAtInTheirOrder) {
    bench.setting("high").set("101");
    EXPECT_THAT(bench.setting("high"), HasError("High must be less than 100."));
    bench.setting("high").set("-1");
    EXPECT_THAT(bench.setting("high"), HasError("High must be more than low."));
    bench.setting("high").set("7");
    EXPECT_THAT(bench.setting("high"), HasError("7 is odd."));
    bench.setting("high").set("8");
    EXPECT_THAT(bench.setting("high"), IsOk());
}

TEST_F(Rules, KeepAndSaveAValueThatBreaksThem) {
    bench.setting("high").set("101");
    EXPECT_EQ(bench.object().high, 101);
    EXPECT_NE(bench.savedSettings().find(R"("high":101)"), std::string::npos);
    EXPECT_THAT(bench, HasErrors(1));
}

TEST_F(Rules, AreLookedAtAgainWhenWhatTheyDependOnChanges) {
    bench.setting("low").set("10");
    EXPECT_THAT(bench, Announced(R"(
        value       E.low: 10
        state       E.high: error: High must be more than low.
        errors      E: 1
        errors      (root): 1)"));
}

TEST_F(Rules, OfARangeIncludeBothItsEnds) {
    EXPECT_THAT(bench.setting("count"), IsOk());
    bench.setting("count").set("24");
    EXPECT_THAT(bench.setting("count"), IsOk());
    bench.setting("count").set("1");
    EXPECT_THAT(bench.setting("count"), HasError("The value must lie between 2 and 24."));
    bench.setting("count").set("25");
    EXPECT_THAT(bench.setting("count"), HasError("The value must lie between 2 and 24."));
}

TEST_F(Rules, OfARangeMayHaveWordsOfTheirOwn) {
    bench.setting("share").set("-0.5");
    EXPECT_THAT(bench.setting("share"), IsOk());
    bench.setting("share").set("0.6");
    EXPECT_THAT(bench.setting("share"), HasError("The share must be small."));
}

TEST_F(Rules, OfARangeNameBoundsOfAnySize) {
    bench.setting("wide").set("18000000000000000001");
    EXPECT_THAT(bench.setting("wide"),
                HasError("The value must lie between 1 and 18000000000000000000."));
}

TEST_F(Rules, RequireAValue) {
    bench.setting("name2").set("");
    EXPECT_THAT(bench.setting("name2"), HasError("Name it."));
}

TEST_F(Rules, ThatRequireAValueComeFirst) {
    bench.setting("other").set("x");
    EXPECT_THAT(bench.setting("other"), HasError("One is too few."));
    bench.setting("other").set("");
    EXPECT_THAT(bench.setting("other"), HasError("Enter a value."));
}

TEST(State, IsSuccessOrTheMessage) {
    EXPECT_TRUE(kit::require(true, "No."));
    EXPECT_EQ(kit::require(false, "No.").error(), L"No.");
}

TEST(State, TakesTheMessageOfALookup) {
    EXPECT_TRUE(kit::resolves(tl::expected<int, std::wstring>(5)));
    const tl::expected<int, std::wstring> nothing = tl::unexpected<std::wstring>(L"not there");
    EXPECT_EQ(kit::resolves(nothing).error(), L"not there");
}

class Demanding final : public kit::Element {
public:
    void describe(kit::Form& form) override {
        form.number("number", "Number", number).required("N");
        form.duration("duration", "Duration", duration).required("D");
        form.uuid("uuid", "UUID", uuid).required("U");
        form.timeStamp("time", "Time", time).required("T");
        form.json("object", "Object", object).required("O");
        form.json("value", "Value", value).required("V");
    }

    double number = 0;
    chrono::Duration duration;
    utils::core::Uuid uuid;
    std::string time;
    json::Object object;
    json::Value value;
};

TEST(RequiredValues, AreThoseThatAreNotEmptyWhateverTheKind) {
    TestBench<Demanding> bench;
    EXPECT_THAT(bench.setting("number"), HasError("N"));
    EXPECT_THAT(bench.setting("duration"), HasError("D"));
    EXPECT_THAT(bench.setting("uuid"), HasError("U"));
    EXPECT_THAT(bench.setting("time"), HasError("T"));
    EXPECT_THAT(bench.setting("object"), HasError("O"));
    EXPECT_THAT(bench.setting("value"), HasError("V"));
    bench.setting("number").set("1");
    bench.setting("duration").set("1s");
    bench.setting("uuid").set("1");
    bench.setting("time").set("2024");
    bench.setting("object").set("{\"a\":1}");
    bench.setting("value").set("1");
    EXPECT_THAT(bench, HasErrors(0));
}

TEST(RequiredValues, AreAskedForBeforeWhatTheKindChecks) {
    TestBench<Demanding> bench;
    bench.object().time = "soon";
    bench.object().property(bench.object().time).publishState();
    EXPECT_THAT(bench.setting("time"),
                HasError("The time stamp must read like “2024-05-06 07:08:09Z”."));
}

} // namespace
} // namespace corvane::tests
