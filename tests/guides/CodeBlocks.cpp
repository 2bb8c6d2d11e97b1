// The guides quote code that is compiled and tested: each of their code blocks stands in one of the
// files that the guide is about, but for the indentation of the block as a whole.

#include "run.hpp"
#include "utils/io/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

Lines linesOf(std::istream& stream) {
    Lines lines;
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        lines.push_back(line);
    }
    return lines;
}

Lines linesOf(const std::filesystem::path& file) {
    std::ifstream stream(file);
    EXPECT_TRUE(stream) << file;
    return linesOf(stream);
}

Lines linesOf(const std::string& text) {
    std::istringstream stream(text);
    return linesOf(stream);
}

struct Block {
    std::size_t line = 0;
    Lines lines;
};

/// The fenced blocks of the languages that are compiled; not those of a shell and its output.
std::vector<Block> codeBlocks(const Lines& guide) {
    std::vector<Block> blocks;
    for (std::size_t index = 0; index < guide.size(); ++index) {
        if (guide[index] == "```cpp" || guide[index] == "```cmake" || guide[index] == "```json") {
            Block block{index + 1, {}};
            for (++index; index < guide.size() && guide[index] != "```"; ++index) {
                block.lines.push_back(guide[index]);
            }
            blocks.push_back(block);
        }
    }
    return blocks;
}

bool standsAt(const Lines& block, const Lines& file, std::size_t first) {
    const std::string& start = file[first];
    if (!start.ends_with(block[0])) {
        return false;
    }
    const std::string indentation = start.substr(0, start.size() - block[0].size());
    if (indentation.find_first_not_of(' ') != std::string::npos) {
        return false;
    }
    for (std::size_t line = 1; line < block.size(); ++line) {
        if (file[first + line] != (block[line].empty() ? "" : indentation + block[line])) {
            return false;
        }
    }
    return true;
}

bool standsIn(const Lines& block, const Lines& file) {
    for (std::size_t first = 0; first + block.size() <= file.size(); ++first) {
        if (standsAt(block, file, first)) {
            return true;
        }
    }
    return false;
}

/// The lines that a patch adds.
Lines addedBy(const Lines& patch) {
    Lines added;
    for (const std::string& line : patch) {
        if (line.starts_with('+') && !line.starts_with("+++")) {
            added.push_back(line.substr(1));
        }
    }
    return added;
}

/// The blocks of the guide, by line, that stand in none of the files.
std::vector<std::size_t> strangers(const Lines& guide, const std::vector<Lines>& files) {
    std::vector<std::size_t> result;
    for (const Block& block : codeBlocks(guide)) {
        const auto quotes = [&](const Lines& file) { return standsIn(block.lines, file); };
        if (std::ranges::none_of(files, quotes)) {
            result.push_back(block.line);
        }
    }
    return result;
}

struct Guide {
    std::string_view name;
    /// Files and folders of the checkout. Of a patch it is the lines that it adds.
    std::vector<std::string_view> sources;
    std::size_t blockCount;
    /// The project that the guide makes with `skillbench new`, if it does.
    std::string_view project{};
};

std::ostream& operator<<(std::ostream& stream, const Guide& guide) {
    return stream << guide.name;
}

class CodeBlocksOf : public ::testing::TestWithParam<Guide> {};

TEST_P(CodeBlocksOf, StandInFilesThatAreCompiled) {
    const std::filesystem::path checkout = CHECKOUT_FOLDER;
    const Lines guide = linesOf(checkout / GetParam().name);
    const corvane::tests::TemporaryFolder folder;
    std::vector<Lines> files;
    const auto add = [&](const std::filesystem::path& path) {
        if (std::filesystem::is_directory(path)) {
            for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
                if (entry.is_regular_file()) {
                    files.push_back(linesOf(entry.path()));
                }
            }
        } else {
            files.push_back(path.extension() == ".patch" ? addedBy(linesOf(path)) : linesOf(path));
        }
    };
    for (const std::string_view source : GetParam().sources) {
        add(checkout / source);
    }
    if (const std::string project(GetParam().project); !project.empty()) {
        std::istringstream in;
        std::ostringstream out;
        const std::vector<std::string> arguments{"new", project, "--in", folder.path().string()};
        ASSERT_EQ(corvane::skillbench::run(arguments, {in, out, out}), 0) << out.str();
        add(folder.path() / project);
    }
    EXPECT_EQ(codeBlocks(guide).size(), GetParam().blockCount);
    for (const std::size_t line : strangers(guide, files)) {
        ADD_FAILURE() << GetParam().name << ':' << line
                      << ": this code stands in no file of the example";
    }
}

INSTANTIATE_TEST_SUITE_P(
    Every, CodeBlocksOf,
    ::testing::Values(
        Guide{"README.md", {"examples/first-skill"}, 1},
        Guide{"docs/first-skill.md", {"tests/guides/height.patch"}, 5, "tank"},
        Guide{"docs/settings.md", {"tests/guides/Settings.cpp"}, 2},
        Guide{"docs/rules.md", {"tests/guides/Settings.cpp"}, 3},
        Guide{"docs/rows.md", {"tests/guides/Rows.cpp"}, 4},
        Guide{"docs/members.md", {"tests/guides/Rows.cpp"}, 1},
        Guide{"docs/files.md", {"examples/first-skill"}, 1},
        Guide{"docs/testing-a-skill.md",
              {"tests/testing/Guide.cpp", "tests/testing/withoutFramework.cpp"},
              10,
              "tank"},
        Guide{"docs/package.md", {"tests/package/skill/CMakeLists.txt"}, 3},
        Guide{"docs/by-hand.md", {"examples/by-hand", "tests/first-skill/FirstSkill.cpp"}, 22},
        Guide{"docs/properties.md", {"tests/guides/Properties.cpp"}, 8},
        Guide{"docs/references.md", {"tests/guides/References.cpp", "examples/by-hand"}, 3}),
    [](const auto& guide) {
        std::string name(guide.param.name);
        std::ranges::replace_if(name, [](char letter) { return !std::isalnum(letter); }, '_');
        return name;
    });

TEST(CodeBlocks, AreFoundInsideAFileWhateverItsIndentation) {
    const Lines guide = linesOf(std::string("text\n```cpp\nif (a) {\n    b();\n\n}\n```\n"));
    const Lines file = linesOf(std::string("{\n    if (a) {\n        b();\n\n    }\n}\n"));
    EXPECT_TRUE(strangers(guide, {file}).empty());
}

TEST(CodeBlocks, ThatDifferFromTheFileAreReportedByLine) {
    const Lines guide = linesOf(std::string("```cpp\na();\nb();\n```\n\n```sh\nls\n```\n"));
    EXPECT_EQ(strangers(guide, {linesOf(std::string("a();\nc();\n"))}),
              std::vector<std::size_t>{1});
    EXPECT_EQ(strangers(guide, {linesOf(std::string("a();\n  b();\n"))}),
              std::vector<std::size_t>{1});
    EXPECT_EQ(strangers(guide, {linesOf(std::string("x a();\nx b();\n"))}),
              std::vector<std::size_t>{1});
}

} // namespace
