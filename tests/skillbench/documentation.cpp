// Plays the commands of docs/skillbench.md and compares what they print with what stands there.

#include "SkillbenchFixture.hpp"

#include <algorithm>
#include <cstddef>
#include <map>

namespace {

using corvane::skillbench::test::SkillbenchTest;
using testing::IsEmpty;
using testing::Not;

/// Output and errors together, as a terminal shows them.
struct Played {
    std::string output;
    int exitCode = 0;
};

/// The page's lines, with the commands found in its console blocks and the files in its JSON
/// blocks; each file is named by the last word in backquotes before its block.
class Page {
public:
    struct Command {
        std::string line;
        std::string expected;
    };

    explicit Page(const std::string& text) {
        std::istringstream lines(text);
        std::string line;
        std::string language;
        while (std::getline(lines, line)) {
            if (line.starts_with("```")) {
                language = language.empty() ? line.substr(3) : std::string();
            } else if (language == "json") {
                files[lastName_] += line + "\n";
            } else if (language == "console" && line.starts_with("$ ")) {
                commands.push_back({line.substr(2), {}});
            } else if (language == "console") {
                commands.back().expected += line + "\n";
            } else {
                noteName(line);
            }
        }
    }

    std::map<std::string, std::string> files;
    std::vector<Command> commands;

private:
    void noteName(const std::string& line) {
        const std::size_t end = line.rfind(".json`");
        if (end != std::string::npos) {
            const std::size_t begin = line.rfind('`', end);
            lastName_ = line.substr(begin + 1, end + 5 - begin - 1);
        }
    }

    std::string lastName_;
};

/// Splits at spaces outside single quotes.
std::vector<std::string> words(std::string_view line) {
    std::vector<std::string> result;
    std::string word;
    bool quoted = false;
    for (const char character : line) {
        if (character == '\'') {
            quoted = !quoted;
        } else if (character == ' ' && !quoted) {
            result.push_back(std::exchange(word, {}));
        } else {
            word += character;
        }
    }
    result.push_back(word);
    return result;
}

class SkillbenchDocumentation : public SkillbenchTest {
protected:
    Played play(const std::string& line) {
        if (line == "echo $?") {
            return {std::to_string(lastExitCode_) + "\n"};
        }
        std::vector<std::string> arguments = words(line);
        EXPECT_EQ(arguments.front(), "skillbench");
        arguments.erase(arguments.begin());
        std::replace(arguments.begin(), arguments.end(), std::string("pump-station.so"),
                     std::string(CORVANE_PUMP_STATION));
        std::replace(arguments.begin(), arguments.end(), std::string("troubles.so"),
                     std::string(CORVANE_TEST_TROUBLE_SKILL));
        std::istringstream nothing;
        std::ostringstream terminal;
        lastExitCode_ = corvane::skillbench::run(arguments, {nothing, terminal, terminal});
        return {terminal.str(), lastExitCode_};
    }

private:
    int lastExitCode_ = 0;
};

TEST_F(SkillbenchDocumentation, ShowsWhatTheToolPrints) {
    std::ifstream stream(CORVANE_SKILLBENCH_PAGE, std::ios::binary);
    std::string text(std::istreambuf_iterator<char>(stream), {});
    std::erase(text, '\r');
    const Page page(text);
    EXPECT_THAT(page.files, Not(IsEmpty()));
    EXPECT_THAT(page.commands, Not(IsEmpty()));
    for (const auto& [name, contents] : page.files) {
        write(name, contents);
    }
    // Stands in the text.
    write("empty.json", "{\"children\": []}\n");
    for (const Page::Command& command : page.commands) {
        EXPECT_EQ(play(command.line).output, command.expected) << "$ " << command.line;
    }
}

} // namespace
