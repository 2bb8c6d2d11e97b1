#include <corvane/workbench/host/Problem.hpp>

#include <gtest/gtest.h>

namespace {

using corvane::workbench::host::Problem;
using corvane::workbench::host::toString;

TEST(Problem, IsPrintedAsCompilersPrintTheirs) {
    EXPECT_EQ(toString(Problem{"a.json", 12, 3, Problem::Severity::Error, "unknown"}),
              "a.json:12:3: error: unknown");
    EXPECT_EQ(toString(Problem{"a.json", 12, 3, Problem::Severity::Warning, "odd"}),
              "a.json:12:3: warning: odd");
}

TEST(Problem, LeavesOutWhatIsUnknown) {
    EXPECT_EQ(toString(Problem{"a.json", 12, 0, Problem::Severity::Error, "x"}),
              "a.json:12: error: x");
    EXPECT_EQ(toString(Problem{"a.json", 0, 0, Problem::Severity::Error, "x"}), "a.json: error: x");
    EXPECT_EQ(toString(Problem{"", 0, 0, Problem::Severity::Error, "x"}), "error: x");
}

} // namespace
