#include <corvane/workbench/testing/Bench.hpp>
#include <corvane/workbench/testing/matchers.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace corvane::workbench::testing;

class @CLASS@ : public ::testing::Test {
protected:
    void loadExample() { bench.loadFile(EXAMPLE); }

    Bench bench{SKILL_LIBRARY};
};

TEST_F(@CLASS@, StartsValid) {
    const BenchElement added = bench.add("@ID@.@CLASS@");
    EXPECT_THAT(added.at("limit"), HasText("80"));
    EXPECT_THAT(added, HasErrors(0));
}

TEST_F(@CLASS@, NeedsALimitWhileItWorksAutomatically) {
    loadExample();
    bench.at("first.limit").set("101");
    EXPECT_THAT(bench.at("first.limit"),
                HasError("The limit must be greater than 0 and at most 100 %."));
    bench.at("first.mode").set("manual");
    EXPECT_THAT(bench.at("first.limit"), IsHidden());
    EXPECT_THAT(bench, HasErrors(0));
}

TEST_F(@CLASS@, LimitsTheSharesOfItsInputs) {
    loadExample();
    bench.at("second.inputs[0].share").set("61");
    EXPECT_THAT(bench.at("second.inputs"),
                HasError("The shares of the inputs must not exceed the limit."));
    bench.at("second.limit").set("61");
    EXPECT_THAT(bench.at("second.inputs"), IsOk());
}

TEST_F(@CLASS@, FollowsItsSourcesThroughARename) {
    loadExample();
    bench.element("first").rename("tank");
    EXPECT_THAT(bench.at("second.inputs"), HasRows("40 % of tank.level"));
    bench.element("tank").remove();
    EXPECT_THAT(bench.at("second.inputs[0].source"),
                HasError("the element “tank” does not exist"));
}

TEST_F(@CLASS@, LoadsWhatItHasSaved) {
    loadExample();
    const std::string saved = bench.saved();
    bench.load(saved);
    EXPECT_EQ(bench.saved(), saved);
}

} // namespace
