// The code of docs/testing-a-skill.md.
#include <corvane/workbench/testing/Bench.hpp>
#include <corvane/workbench/testing/matchers.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace {

using namespace corvane::workbench::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class Mixer : public ::testing::Test {
protected:
    Bench bench{SKILL_LIBRARY};
    BenchElement mixer = bench.add("FirstSkill.Mixer", "main");
};

TEST_F(Mixer, NeedsATopSpeedThatItCanReach) {
    mixer.at("topSpeed").set("3001");
    EXPECT_THAT(mixer.at("topSpeed"), HasError("The top speed must lie between 1 and 3000."));
    EXPECT_THAT(bench, HasErrors(1));
    mixer.at("topSpeed").set("3000");
    EXPECT_THAT(bench, HasErrors(0));
}

TEST_F(Mixer, IsNoFasterThanItsSteps) {
    bench.load(R"({"children": [{"FirstSkill.Mixer": {"name": "main", "topSpeed": 800, "steps": [
        {"ingredient": "water", "speed": 100}, {"ingredient": "sugar", "speed": 900}]}}]})");
    EXPECT_THAT(bench.at("main.steps"), HasError("No step may be faster than the top speed."));
    bench.at("main.steps[1].speed").set("800");
    EXPECT_THAT(bench.at("main.steps"), IsOk());
}

TEST_F(Mixer, RefusesAMemberThatItDoesNotKnow) {
    EXPECT_FALSE(bench.tryLoad(R"({"children": [
        {"FirstSkill.Mixer": {"name": "m", "topSped": 5}}]})"));
    EXPECT_THAT(bench.problems(),
                ElementsAre("configuration.json:2:44: error: unknown parameter \"topSped\""));
}

TEST_F(Mixer, TakesNumbersOnly) {
    EXPECT_THAT(mixer.at("topSpeed"), Refuses("fast", "“fast” is not a whole number."));
}

TEST_F(Mixer, FollowsItsLeaderThroughARename) {
    const BenchElement second = bench.add("FirstSkill.Mixer", "second");
    second.at("leader").set("main.speed");
    EXPECT_THAT(mixer.referrers(), ElementsAre("second.leader"));

    mixer.rename("first");
    EXPECT_THAT(second.at("leader"), HasText("first.speed"));

    mixer.remove();
    EXPECT_THAT(second.at("leader"), HasError("the element “first” does not exist"));
}

TEST_F(Mixer, TellsThatTheShareAppearsWithTheLeader) {
    const BenchElement second = bench.add("FirstSkill.Mixer", "second");
    second.at("leader").set("main.speed");
    EXPECT_THAT(bench, Announced(R"(
        value       second.leader: main.speed
        visibility  second.share: visible)"));
}

TEST_F(Mixer, CountsItsErrorsUpToTheRoot) {
    mixer.at("topSpeed").set("0");
    EXPECT_THAT(bench.announced(), Contains("errors      (root): 1"));
}

TEST_F(Mixer, SavesTheShareOnlyWithALeader) {
    EXPECT_THAT(mixer.saved(), Not(HasSubstr("share")));
    const std::string configuration = bench.saved();
    bench.load(configuration);
    EXPECT_EQ(bench.saved(), configuration);
}

TEST_F(Mixer, FailsAsTheGuideShows) {
    ::testing::TestPartResultArray failures;
    {
        const ::testing::ScopedFakeTestPartResultReporter reporter(
            ::testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &failures);
        EXPECT_THAT(mixer.at("topSpeed"), HasError("Too fast."));
    }
    ASSERT_EQ(failures.size(), 1);
    std::ifstream stream(TESTING_GUIDE, std::ios::binary);
    std::string guide(std::istreambuf_iterator<char>(stream), {});
    std::erase(guide, '\r');
    EXPECT_THAT(guide, HasSubstr("\n```\n" + std::string(failures.GetTestPartResult(0).message()) +
                                 "```\n"));
}

} // namespace
