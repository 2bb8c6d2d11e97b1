#pragma once

#include <corvane/workbench/testing/Bench.hpp>
#include <corvane/workbench/testing/matchers.hpp>
#include <corvane/workbench/testing/savedSettings.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace pump_station::tests {

using corvane::workbench::testing::Announced;
using corvane::workbench::testing::Bench;
using corvane::workbench::testing::BenchElement;
using corvane::workbench::testing::HasError;
using corvane::workbench::testing::HasErrors;
using corvane::workbench::testing::HasRows;
using corvane::workbench::testing::HasText;
using corvane::workbench::testing::IsHidden;
using corvane::workbench::testing::IsOk;
using corvane::workbench::testing::IsVisible;
using corvane::workbench::testing::Refuses;
using corvane::workbench::testing::savedSettings;
using corvane::workbench::testing::Setting;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// A file of the folder "configurations".
[[nodiscard]] inline std::filesystem::path configuration(std::string_view name) {
    return std::filesystem::path(PUMP_STATION_CONFIGURATIONS) / name;
}

[[nodiscard]] inline std::string readFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << file;
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// A bench with the skill's library. The skill's C++ classes stay inside it.
class PumpStationTest : public testing::Test {
protected:
    Bench bench{PUMP_STATION_LIBRARY};
};

} // namespace pump_station::tests
