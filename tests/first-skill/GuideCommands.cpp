// The commands of docs/writing-a-skill.md print what the guide says that they print.

#include "run.hpp"
#include "utils/io/TemporaryFolder.hpp"

#include <gtest/gtest.h>

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
std::string absolute(const std::filesystem::path& path) {
    return std::filesystem::absolute(path).string();
}

constexpr std::string_view kPrompt = "$ ./dev skillbench ";

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
                command.arguments.push_back(word == "build/tools/bin/first-skill.so"
                                                ? absolute(FIRST_SKILL_LIBRARY)
                                                : word);
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

/// In a folder of its own, which holds the configuration where the guide has it.
class GuideCommands : public ::testing::Test {
protected:
    GuideCommands() : commands(commandsOf(GUIDES_FOLDER "/writing-a-skill.md")) {
        const auto example = folder_.path() / "examples/first-skill";
        std::filesystem::create_directories(example);
        std::filesystem::copy(FIRST_SKILL_CONFIGURATION, example);
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

TEST_F(GuideCommands, PrintWhatTheGuideSays) {
    ASSERT_EQ(commands.size(), 3U);
    for (const Command& command : commands) {
        std::ostringstream out;
        std::ostringstream err;
        corvane::skillbench::run(command.arguments, {out, err});
        EXPECT_EQ(out.str(), command.output);
        EXPECT_EQ(err.str(), "");
    }
}

} // namespace
