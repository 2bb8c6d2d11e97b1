#include "SkillbenchFixture.hpp"

namespace {

using corvane::skillbench::test::Outcome;
using corvane::skillbench::test::runWith;

TEST(SkillbenchType, CompletesATimeStampWhileItIsTyped) {
    EXPECT_EQ(runWith({"type", "timestamp", "2024"}),
              (Outcome{0,
                       "(start)       |   cursor 0\n"
                       "2             2|000-00-00 00:00:00+00:00   cursor 1\n"
                       "0             20|00-00-00 00:00:00+00:00   cursor 2\n"
                       "2             202|0-00-00 00:00:00+00:00   cursor 3\n"
                       "4             2024|-00-00 00:00:00+00:00   cursor 4\n",
                       ""}));
}

TEST(SkillbenchType, CompletesAUuidAroundTheSelection) {
    EXPECT_EQ(runWith({"type", "uuid", "--text", "01234567-89ab-cdef-0123-456789abcdef", "--cursor",
                       "3", "a<select-left>", "b"}),
              (Outcome{0,
                       "(start)       012|34567-89ab-cdef-0123-456789abcdef   cursor 3\n"
                       "a             012a|3456-89ab-cdef-0123-456789abcdef   cursor 4\n"
                       "<select-left> 012[a]3456-89ab-cdef-0123-456789abcdef   selection 4 to 3\n"
                       "b             012b|3456-89ab-cdef-0123-456789abcdef   cursor 4\n",
                       ""}));
}

TEST(SkillbenchType, AnEmptiedTimeStampBeginsAnew) {
    EXPECT_EQ(
        runWith({"type", "timestamp", "--text", "2024-05-06 07:08:09Z", "<select-all><delete>"}),
        (Outcome{0,
                 "(start)       2024-05-06 07:08:09Z|   cursor 20\n"
                 "<select-all>  [2024-05-06 07:08:09Z]   selection 0 to 20\n"
                 "<delete>      |2001-01-01 00:00:00Z   cursor 0\n",
                 ""}));
}

TEST(SkillbenchType, MovingAloneChangesNothing) {
    EXPECT_EQ(runWith({"type", "timestamp", "--text", "abc", "<home><right>"}),
              (Outcome{0,
                       "(start)       abc|   cursor 3\n"
                       "<home>        |abc   cursor 0\n"
                       "<right>       a|bc   cursor 1\n",
                       ""}));
}

TEST(SkillbenchType, TakesKeysThatAreNotAscii) {
    EXPECT_EQ(
        runWith({"type", "timestamp", "--text", "2024-05-06 07:08:09Z", "--cursor", "4", "ü"}).out,
        "(start)       2024|-05-06 07:08:09Z   cursor 4\n"
        "ü             2024|-05-06 07:08:09Z   cursor 4\n");
}

TEST(SkillbenchType, RefusesWhatItCannotType) {
    EXPECT_EQ(runWith({"type", "colour", "1"}),
              (Outcome{2, "",
                       "skillbench type: there is no text box for “colour”, but for “timestamp” "
                       "and “uuid”; “skillbench type --help” explains\n"}));
    EXPECT_EQ(runWith({"type", "uuid"}),
              (Outcome{2, "",
                       "skillbench type: KEYSTROKES is missing; “skillbench type --help” "
                       "explains\n"}));
    EXPECT_EQ(runWith({"type", "uuid", "--text", "abc", "--cursor", "4", "1"}),
              (Outcome{2, "",
                       "skillbench type: the cursor “4” is no position from 0 to 3; “skillbench "
                       "type --help” explains\n"}));
    EXPECT_EQ(runWith({"type", "uuid", "--cursor", "x", "1"}),
              (Outcome{2, "",
                       "skillbench type: the cursor “x” is no position from 0 to 0; “skillbench "
                       "type --help” explains\n"}));
    const Outcome outcome = runWith({"type", "uuid", "<up>"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.err,
                testing::StartsWith("skillbench type: there is no key “<up>”; the names are "));
}

} // namespace
