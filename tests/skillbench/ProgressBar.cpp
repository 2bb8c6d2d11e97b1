#include "ProgressBar.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <sstream>

namespace {

using corvane::skillbench::ProgressBar;
using corvane::workbench::host::LoadProgress;
using Stage = LoadProgress::Stage;

TEST(ProgressBar, ShowsTheShare) {
    EXPECT_EQ(ProgressBar::line({Stage::Reading, 0, 200}),
              "reading    [                              ]   0 %");
    EXPECT_EQ(ProgressBar::line({Stage::References, 100, 200}),
              "references [###############               ]  50 %");
    EXPECT_EQ(ProgressBar::line({Stage::Properties, 200, 200}),
              "properties [##############################] 100 %");
}

TEST(ProgressBar, NeverShowsMoreThanAll) {
    EXPECT_EQ(ProgressBar::line({Stage::Reading, 300, 200}),
              "reading    [##############################] 100 %");
}

TEST(ProgressBar, CountsWhenTheTotalIsUnknown) {
    EXPECT_EQ(ProgressBar::line({Stage::Elements, 1234, 0}), "elements   1234");
}

TEST(ProgressBar, StaysOnOneLineAndTakesItAwayAtTheEnd) {
    std::ostringstream terminal;
    {
        ProgressBar bar(terminal, std::chrono::milliseconds(0));
        bar.show({Stage::Reading, 1, 1});
        bar.show({Stage::Reading, 1, 1});
        bar.show({Stage::Elements, 7, 0});
    }
    const std::string spaces(49, ' ');
    EXPECT_EQ(terminal.str(), "\rreading    [##############################] 100 %"
                              "\relements   7" +
                                  std::string(37, ' ') + "\r" + spaces + "\r");
}

TEST(ProgressBar, ShowsNothingOfAShortLoad) {
    std::ostringstream terminal;
    {
        ProgressBar bar(terminal, std::chrono::hours(1));
        bar.show({Stage::Reading, 1, 1});
    }
    EXPECT_EQ(terminal.str(), "");
}

} // namespace
