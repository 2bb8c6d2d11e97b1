#pragma once

// Runs skillbench in process, on files of its own.

#include "run.hpp"
#include "text.hpp"
#include "utils/io/TemporaryFolder.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace corvane::skillbench::test {

/// What a run gave.
struct Outcome {
    int exitCode = 0;
    std::string out;
    std::string err;

    friend bool operator==(const Outcome&, const Outcome&) = default;
    friend std::ostream& operator<<(std::ostream& to, const Outcome& outcome) {
        return to << "exit code " << outcome.exitCode << "\n--- out\n"
                  << outcome.out << "--- err\n"
                  << outcome.err;
    }
};

[[nodiscard]] inline Outcome runWith(const std::vector<std::string>& arguments,
                                     const std::string& input = {}) {
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    const int exitCode = run(arguments, {in, out, err});
    return {exitCode, out.str(), err.str()};
}

/// With a folder that is the current one during the test, so that files are named as short as in
/// the expected texts.
class SkillbenchTest : public testing::Test {
protected:
    SkillbenchTest() : before_(std::filesystem::current_path()) {
        std::filesystem::current_path(folder_.path());
    }
    ~SkillbenchTest() override {
        // Before the folder goes.
        std::error_code ignored;
        std::filesystem::current_path(before_, ignored);
    }

    static void write(std::string_view name, std::string_view text) {
        std::ofstream(pathOf(name), std::ios::binary) << text;
    }
    [[nodiscard]] static std::string read(std::string_view name) {
        std::ifstream stream(pathOf(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    /// A command with the fixture's skill.
    [[nodiscard]] static Outcome runOn(std::string_view command,
                                       const std::vector<std::string>& arguments) {
        std::vector<std::string> all{std::string(command), "--skill", skillLibrary()};
        all.insert(all.end(), arguments.begin(), arguments.end());
        return runWith(all);
    }
    [[nodiscard]] static std::string skillLibrary() { return CORVANE_TEST_SKILL; }
    [[nodiscard]] static std::string noSkillLibrary() { return CORVANE_TEST_NO_SKILL; }

    /// Two tanks in a group, and a gauge that refers to one of them and to its attribute.
    static void writePlant() {
        write("plant.json", R"({
  "children": [
    {"group": {"name": "Werk", "UUID": "10000000-0000-4000-8000-000000000001", "children": [
      {"tank": {"name": "Öl", "UUID": "10000000-0000-4000-8000-000000000002",
                "level": 40, "automatic": true, "setPoint": 60, "limits": [80, 90]}},
      {"tank": {"name": "[Tank 1.5]", "UUID": "10000000-0000-4000-8000-000000000003", "level": 7}}
    ]}},
    {"gauge": {"name": "Gauge", "UUID": "10000000-0000-4000-8000-000000000004",
               "tank": "Werk.[Tank 1.5]", "source": "Werk.[Tank 1.5].level"}}
  ]
}
)");
    }

private:
    tests::TemporaryFolder folder_;
    std::filesystem::path before_;
};

} // namespace corvane::skillbench::test
