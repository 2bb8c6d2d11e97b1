#include "BenchTest.hpp"

#include <gtest/gtest-spi.h>

namespace corvane::tests {

namespace {

using ::testing::StartsWith;

class MatchersTest : public BenchTest {
protected:
    /// What the matcher says about something that it does not match.
    template <class Matcher, class Value>
    static std::string complaint(const Matcher& matcher, const Value& value) {
        const auto typed = ::testing::SafeMatcherCast<const Value&>(matcher);
        ::testing::StringMatchResultListener listener;
        EXPECT_FALSE(typed.MatchAndExplain(value, &listener));
        return "expected: " + ::testing::DescribeMatcher<const Value&>(typed) +
               "\nactual: " + ::testing::PrintToString(value) + ", " + listener.str();
    }

    Setting drive = main.at("drive");
    Setting topSpeed = main.at("topSpeed");
};

TEST_F(MatchersTest, JudgeStates) {
    drive.set("variable");
    EXPECT_THAT(topSpeed, IsOk());
    EXPECT_THAT(topSpeed, Not(HasError(Not(IsEmpty()))));
    topSpeed.set("0");
    EXPECT_THAT(topSpeed, Not(IsOk()));
    EXPECT_THAT(topSpeed, HasError("The top speed must lie between 1 and 3000."));
    EXPECT_THAT(topSpeed, HasError(StartsWith("The top speed")));
    EXPECT_THAT(topSpeed, Not(HasError("The top speed")));
}

TEST_F(MatchersTest, JudgeVisibility) {
    EXPECT_THAT(topSpeed, IsHidden());
    EXPECT_THAT(topSpeed, Not(IsVisible()));
    EXPECT_THAT(drive, IsVisible());
    EXPECT_THAT(drive, Not(IsHidden()));
}

TEST_F(MatchersTest, JudgeTextsAndRows) {
    EXPECT_THAT(drive, HasText("fixed"));
    EXPECT_THAT(drive, Not(HasText("variable")));
    EXPECT_THAT(main.at("steps"), HasRows());
    main.at("steps").insertRow(0);
    main.at("steps[0].ingredient").set("water");
    EXPECT_THAT(main.at("steps"), HasRows("water"));
    EXPECT_THAT(main.at("steps"), HasRows(StartsWith("w")));
    EXPECT_THAT(main.at("steps"), Not(HasRows("sugar")));
    EXPECT_THAT(main.at("steps"), Not(HasRows("water", "sugar")));
}

TEST_F(MatchersTest, JudgeRefusals) {
    EXPECT_THAT(topSpeed, Refuses("fast", "“fast” is not a whole number."));
    EXPECT_THAT(topSpeed, Refuses("fast", HasSubstr("whole")));
    EXPECT_THAT(topSpeed, Not(Refuses("5", Not(IsEmpty()))));
    EXPECT_THAT(topSpeed, HasText("5"));
}

TEST_F(MatchersTest, JudgeErrorCounts) {
    EXPECT_THAT(bench, HasErrors(0));
    main.at("leader").set("nobody.speed");
    EXPECT_THAT(bench, HasErrors(1));
    EXPECT_THAT(main, HasErrors(1));
    EXPECT_THAT(main, HasErrors(::testing::Gt(0)));
    EXPECT_THAT(main, Not(HasErrors(2)));
}

TEST_F(MatchersTest, JudgeWhatWasAnnounced) {
    drive.set("variable");
    EXPECT_THAT(bench, Announced("  value       main.drive: variable\n\n"
                                 "  visibility  main.topSpeed: visible  \n"));
    EXPECT_THAT(bench, Not(Announced("value       main.drive: variable")));
    EXPECT_THAT(bench, Not(Announced("visibility  main.topSpeed: visible\n"
                                     "value       main.drive: variable")));
    EXPECT_THAT(topSpeed, Announced("visibility  main.topSpeed: visible"));
    EXPECT_THAT(main.at("steps"), Announced(""));
}

TEST_F(MatchersTest, ShowTheTreeAroundASettingThatIsNotAsExpected) {
    EXPECT_EQ(complaint(HasError("Too slow."), drive),
              "expected: has an error text that is equal to \"Too slow.\"\n"
              "actual: main.drive: fixed (ok), in\n"
              "  main  (Mixer, no errors)\n"
              ">   ok     Drive: fixed\n"
              "    hidden Top speed: 1500\n"
              "    ok     Summary: 0 steps\n"
              "    ok     Follows:\n"
              "    ok     Steps: no rows");
}

TEST_F(MatchersTest, ShowTheTreeBelowAnElementWithAnotherNumberOfErrors) {
    EXPECT_EQ(complaint(HasErrors(1), main), "expected: has a number of errors that is equal to 1\n"
                                             "actual: main with no errors, in\n"
                                             "main  (Mixer, no errors)\n"
                                             "  ok     Drive: fixed\n"
                                             "  hidden Top speed: 1500\n"
                                             "  ok     Summary: 0 steps\n"
                                             "  ok     Follows:\n"
                                             "  ok     Steps: no rows");
}

TEST_F(MatchersTest, ShowTheFirstLineThatWasNotExpected) {
    drive.set("variable");
    EXPECT_EQ(complaint(Announced("value       main.drive: variable\n"
                                  "errors      main: 1"),
                        bench),
              "expected: announced\n"
              "  value       main.drive: variable\n"
              "  errors      main: 1\n"
              "actual: a bench with 1 element and no errors, which announced\n"
              "  value       main.drive: variable\n"
              "> visibility  main.topSpeed: visible");
}

TEST_F(MatchersTest, SayWhatWasRefusedButHappened) {
    EXPECT_THAT(complaint(Refuses("5", "Too slow."), topSpeed),
                StartsWith("expected: refuses “5” for a reason that is equal to \"Too slow.\"\n"
                           "actual: main.topSpeed: 5 (hidden), in\n"));
}

} // namespace

} // namespace corvane::tests
