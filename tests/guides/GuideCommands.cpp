// The commands of the guides print what the guides say that they print.

#include "run.hpp"
#include "utils/io/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

struct Command {
    std::vector<std::string> arguments;
    std::string output;
};

/// Good in another folder, also where that is on another drive.
std::string absoluteText(const std::filesystem::path& path) {
    return std::filesystem::absolute(path).string();
}

constexpr std::string_view kPrompt = "$ ./dev skillbench ";
constexpr std::string_view kLibraries = "build/tools/bin/";

/// The skill of this build that a guide names by its place in another one.
std::string libraryOf(const std::string& named) {
    return absoluteText(std::filesystem::path(LIBRARY_FOLDER) /
                        std::filesystem::path(named).replace_extension(SKILL_EXTENSION).filename());
}

/// The commands at the prompt in the guide's blocks, each with the lines up to the block's end.
std::vector<Command> commandsOf(const std::filesystem::path& guide) {
    std::ifstream stream(guide, std::ios::binary);
    std::vector<Command> commands;
    bool printing = false;
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        if (line.starts_with(kPrompt)) {
            std::istringstream words(line.substr(kPrompt.size()));
            Command& command = commands.emplace_back();
            for (std::string word; words >> word;) {
                command.arguments.push_back(word.starts_with(kLibraries) ? libraryOf(word) : word);
            }
            printing = true;
        } else if (line == "```") {
            printing = false;
        } else if (printing) {
            commands.back().output += line + '\n';
        }
    }
    return commands;
}

/// In a folder of its own, which holds the configurations where the guides have them.
class GuideCommands : public ::testing::TestWithParam<const char*> {
protected:
    GuideCommands()
        : commands(commandsOf(std::filesystem::path(CHECKOUT_FOLDER "/docs") / GetParam())) {
        for (const char* const example : {"examples/first-skill", "examples/by-hand"}) {
            std::filesystem::create_directories(folder_.path() / example);
            std::filesystem::copy(std::filesystem::path(CHECKOUT_FOLDER) / example /
                                      "configuration.json",
                                  folder_.path() / example);
        }
        std::filesystem::current_path(folder_.path());
    }
    ~GuideCommands() override {
        std::error_code ignored;
        std::filesystem::current_path(before_, ignored);
    }

    std::vector<Command> commands;

private:
    std::filesystem::path before_ = std::filesystem::current_path();
    corvane::tests::TemporaryFolder folder_;
};

INSTANTIATE_TEST_SUITE_P(Of, GuideCommands, ::testing::Values("by-hand.md"), [](const auto& page) {
    std::string name = page.param;
    std::ranges::replace_if(name, [](char letter) { return !std::isalnum(letter); }, '_');
    return name;
});

TEST_P(GuideCommands, PrintWhatTheGuideSays) {
    ASSERT_EQ(commands.size(), 3U);
    for (const Command& command : commands) {
        std::istringstream in;
        std::ostringstream out;
        std::ostringstream err;
        corvane::skillbench::run(command.arguments, {in, out, err});
        EXPECT_EQ(out.str(), command.output);
        EXPECT_EQ(err.str(), "");
    }
}

} // namespace
